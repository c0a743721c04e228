#include "files/remarks.h"

#include <ostream>

#include "files/file_access.h"

namespace velmora {

Tell Remarks::about(const std::string& name) {
    return [this, shown = name == kStandardStream ? "standard input" : name](const std::string& what) {
        any_ = true;
        err_ << "velmora-files: " << shown << ": " << what << '\n';
    };
}

}  // namespace velmora
