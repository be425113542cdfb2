// The languages that texts are written in and checked for.
#pragma once

namespace torvi {

enum class Lingua { Italiano, Inglese };

}  // namespace torvi
