#include "organiser/tour_names.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(TourNames, TheFirstOnesAreTakenWhereTheyAreFree) {
    EXPECT_EQ(freeTourNames({}).base, "TOUR");
    EXPECT_EQ(freeTourNames({}).text, "TOURTEXT.TXT");
    EXPECT_EQ(freeTourNames({}).bytes, "TOURFILE.DAT");
    EXPECT_EQ(freeTourNames({"Tourist.odb", "MyTour.odb", "Tours"}).base, "TOUR");
}

TEST(TourNames, AnyFileOfThemWhateverItsExtensionTakesThemAll) {
    for (const char* name :
         {"Tour.odb", "TOUR.TXT", "tour", "Tour.wks.bak", "Tourtext.txt", "TOURFILE.DAT"}) {
        EXPECT_EQ(freeTourNames({name}).base, "TOUR2") << name;
    }
    EXPECT_EQ(freeTourNames({"Tour.odb", "Tour2text.txt", "TOUR3.WKS"}).base, "TOUR4");
    EXPECT_EQ(freeTourNames({"Tour.odb", "Tour3.odb"}).base, "TOUR2");
    EXPECT_EQ(freeTourNames({"Tour.odb"}).text, "TOUR2TEXT.TXT");
}

}  // namespace
}  // namespace velmora
