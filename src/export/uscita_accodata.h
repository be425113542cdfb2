// What outputs may be appended to. The operator, or a command on the line, names the file.
#pragma once

#include <QString>

namespace torvi {

// Throws error 75, which names the file and says what it is, on an archive and on a list of
// deliveries (sigle.* in a folder mdb).
void RichiediUscita(const QString& percorso);
// The same on any other file that holds something and is no lexxdump: neither named so nor
// beginning with a record. What is not there or no regular file passes.
void RichiediLexxdump(const QString& percorso);

}  // namespace torvi
