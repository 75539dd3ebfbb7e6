#include "printing/page_file.h"

#include <gtest/gtest.h>

#include "support/printers.h"

namespace veroxia {
namespace {

using namespace Qt::StringLiterals;

TEST(PageFileTest, GivesBackAnyPageAsItWasPrinted) {
  PageFile file;
  file.SetFontSize(u"10"_s);
  file.SetFontName(u"Courier New Greek"_s);
  file.Print(u"ΑΒΓ\r\n  x  "_s);
  file.Print(u"δεύτερο"_s);  // on the same page
  file.NewPage();
  file.NewPage();  // a page left blank
  for (int page = 3; page <= 1000; ++page) {
    if (page > 3) file.NewPage();
    file.Print(QString(page, u'Ω') + QString::number(page));
  }
  EXPECT_EQ(file.Count(), 999);  // the last one is still being printed
  file.EndDoc();
  ASSERT_EQ(file.Count(), 1000);
  EXPECT_EQ(file.Page(999), QString(1000, u'Ω') + u"1000"_s);
  EXPECT_EQ(file.Page(0), u"ΑΒΓ\r\n  x  \r\nδεύτερο"_s);
  EXPECT_EQ(file.Page(1), QString());
  EXPECT_EQ(file.Page(499), QString(500, u'Ω') + u"500"_s);
  EXPECT_EQ(file.FontSize(), u"10"_s);
  EXPECT_EQ(file.FontName(), u"Courier New Greek"_s);
  file.KillDoc();
  EXPECT_EQ(file.Count(), 0);
}

}  // namespace
}  // namespace veroxia
