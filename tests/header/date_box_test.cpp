// The masked date boxes: when they count as empty, what they store and what
// they show for a stored value.

#include <gtest/gtest.h>

#include "header/date_box.h"
#include "support/printers.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

TEST(HeaderDateBox, EmptyMeansNothingTyped) {
  EXPECT_TRUE(DateBoxIsEmpty(u"__/__/____"_s));
  EXPECT_TRUE(DateBoxIsEmpty(u"  /  /    "_s));
  EXPECT_TRUE(DateBoxIsEmpty(u""_s));
  EXPECT_FALSE(DateBoxIsEmpty(u"0_/__/____"_s));
  EXPECT_FALSE(DateBoxIsEmpty(u"08/05/2002"_s));
}

TEST(HeaderDateBox, StoresTheEmptyTextOrTheFullText) {
  EXPECT_EQ(DateBoxValue(u"__/__/____"_s), u""_s);
  EXPECT_EQ(DateBoxValue(u"08/05/2002"_s), u"08/05/2002"_s);
  EXPECT_EQ(DateBoxValue(u"08/05/20__"_s), u"08/05/20__"_s);
}

TEST(HeaderDateBox, ShowsTheEmptyMaskForNothingStored) {
  EXPECT_EQ(DateBoxText(std::nullopt), u"__/__/____"_s);
  EXPECT_EQ(DateBoxText(u""_s), u"__/__/____"_s);
  EXPECT_EQ(DateBoxText(u"   "_s), u"__/__/____"_s);
  EXPECT_EQ(DateBoxText(u"08/05/2002"_s), u"08/05/2002"_s);
}

}  // namespace
}  // namespace veroxia
