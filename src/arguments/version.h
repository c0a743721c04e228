// Which version this is.
#pragma once

#include <string>

namespace velmora {

/// The number of the release: "0.1.0".
std::string releaseVersion();
/// The same with the commit that it is made of, where the packager has said which: "0.1.0 (1a2b3c4)".
std::string fullVersion();

}  // namespace velmora
