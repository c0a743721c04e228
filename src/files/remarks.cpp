#include "files/remarks.h"

#include <ostream>

namespace velmora {

Tell Remarks::about(const std::string& name) {
    return [this, name](const std::string& what) {
        any_ = true;
        err_ << "velmora-files: " << name << ": " << what << '\n';
    };
}

}  // namespace velmora
