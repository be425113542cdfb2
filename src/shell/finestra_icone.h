// The icons of the buttons. Those of the texts come in two states: "write", and "write-r" where the
// text exists.
#pragma once

#include <QIcon>

namespace torvi {

// By the name of its file in risorse/icone, such as "write-r". A name that is not there: error 53.
[[nodiscard]] QIcon IconaDi(const QString& nome);

}  // namespace torvi
