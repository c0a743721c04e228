#include "arguments/program.h"

#include <exception>
#include <ostream>

#include "arguments/syntax.h"
#include "arguments/usage_error.h"

namespace velmora {

int runProgram(const std::string& name, std::ostream& out, std::ostream& err,
               const std::function<int()>& work) {
    int status = kStatusDone;
    try {
        status = work();
    } catch (const RequestedText& requested) {
        out << requested.text;
    } catch (const UsageError& error) {
        err << name << ": " << error.what() << '\n';
        return kStatusWrongUsage;
    } catch (const std::exception& error) {
        err << name << ": " << error.what() << '\n';
        return kStatusFailed;
    }
    if (!out.flush() && status == kStatusDone) {
        err << name << ": standard output cannot be written\n";
        return kStatusFailed;
    }
    return status;
}

}  // namespace velmora
