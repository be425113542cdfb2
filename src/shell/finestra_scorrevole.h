// Forms that are larger than the place they are given.
#pragma once

#include <QWidget>

namespace torvi {

// From now on the form, which must have a layout, scrolls where there is no room for its controls,
// and a control that gets the focus is brought into sight. Names, Tab order and signals of the
// controls stay; a form that scrolls already is left alone. To be called once the form is laid out.
void RendiScorrevole(QWidget& forma);

}  // namespace torvi
