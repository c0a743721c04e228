#include "organiser/tour_names.h"

#include <set>

#include "base/byte_text.h"

namespace velmora {

TourNames freeTourNames(const std::vector<std::string>& listed) {
    const std::string text = "TEXT";
    const std::string bytes = "FILE";
    std::set<std::string> taken;
    for (const std::string& name : listed) {
        taken.insert(upperCase(name.substr(0, name.find('.'))));
    }
    std::string base = "TOUR";
    for (int number = 2; taken.count(base) + taken.count(base + text) + taken.count(base + bytes) > 0;
         ++number) {
        base = "TOUR" + std::to_string(number);
    }
    return {base, base + text + ".TXT", base + bytes + ".DAT"};
}

}  // namespace velmora
