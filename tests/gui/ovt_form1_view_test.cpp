// The header window's wiring: real widgets, typed into and clicked, and read
// with long stored values in the view and the edit state.

#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QRadioButton>

#include "gui/driver.h"
#include "gui/header_view.h"
#include "gui/qt_dialogs.h"
#include "header/texts.h"
#include "store/rows.h"
#include "support/fakes.h"

namespace veroxia::testing {
namespace {

using namespace Qt::StringLiterals;

class OvtForm1ViewTest : public ::testing::Test {
 protected:
  explicit OvtForm1ViewTest(Dialogs* real = nullptr)
      : form(store.vars, real != nullptr ? *real : dialogs, screens) {
    store.Open();
    store.vars.DeclarationId = 1;
    store.vars.PeriodFrom = u"012002"_s;
    store.vars.PeriodTo = u"032002"_s;
  }

  void Open() {
    form.Load();
    view = std::make_unique<OvtForm1View>(form);
    ShowActive(*view);
  }

  template <class W = QLineEdit>
  W* Get(const QString& name) {
    return Find<W>(*view, name);
  }

  TempStore store;
  FakeDialogs dialogs;
  FakeScreens screens;
  OvtForm1 form;
  std::unique_ptr<OvtForm1View> view;
};

TEST_F(OvtForm1ViewTest, EachOptionStandsWithItsOwnCaption) {
  Open();
  Click(*view, u"Option1_1"_s);
  EXPECT_EQ(form.Text(u"Text1"_s), u"02"_s);
  EXPECT_FALSE(Get<QWidget>(u"Option1Lbl_0"_s)->isEnabled());
  QRect previous_caption;
  for (int i = 0; i < 3; ++i) {
    const QRect circle = Get<QRadioButton>(u"Option1_"_s + QString::number(i))->geometry();
    const auto* caption = Get<QLabel>(u"Option1Lbl_"_s + QString::number(i));
    const QString blanks = caption->text().left(caption->text().indexOf(u'0'));
    // From the circle to the first letter of its own caption, and from the
    // end of the caption before to the circle.
    const int own =
        caption->x() + caption->fontMetrics().horizontalAdvance(blanks) - circle.right();
    EXPECT_GT(own, 0) << i;
    if (i > 0) {
      EXPECT_GT(circle.left() - previous_caption.right(), 2 * own) << i;
    }
    previous_caption = caption->geometry();
  }
}

TEST_F(OvtForm1ViewTest, LongStoredValuesAreReadableInBothStatesAndTheCloseBoxAsks) {
  EmployerRow row;  // texts that fill their fields
  row.id = 1;
  row.declaration_type = u"01"_s;
  row.orgbra_branch_code = u"051"_s;
  row.orgbra_branch_descr = QString(50, u'Π');
  row.employer_name = QString(80, u'Ε');
  row.emp_first_name = QString(30, u'Ν');
  row.emp_father_name = QString(30, u'Φ');
  row.address_street = QString(50, u'Ο');
  row.city = u"ΑΘΗΝΑ ΚΕΝΤΡΟ"_s;
  InsertRow(*store.vars.StoreConnection, row);
  Open();
  ExpectNothingCut(*view);
  // Every box shows all it may hold; one longer than the window 36 characters.
  for (QLineEdit* box : view->findChildren<QLineEdit*>()) {
    if (!box->isVisible() || !box->inputMask().isEmpty()) continue;
    const int shown = std::min(box->maxLength(), 36);
    EXPECT_TRUE(ShowsWhole(*box, QString(shown, u'0'))) << box->objectName().toStdString();
  }

  Click(*view, u"UpDateCmd"_s);  // the correction starts in Text2, selected
  EXPECT_EQ(view->focusWidget(), Get(u"Text2"_s));
  EXPECT_EQ(Get(u"Text2"_s)->selectedText(), u"051"_s);
  ExpectNothingCut(*view);

  TypeInto(*view, u"Text10"_s, u"ΑΛΛΗ ΠΟΛΗ ΜΕ ΠΟΛΥ ΜΑΚΡΥ ΟΝΟΜΑ ΕΔΩ"_s);
  QApplication::processEvents();
  Click(*view, u"CancelCmd"_s);  // the stored values come back, from their start
  for (const char* name : {"Text3", "Text4", "Text7", "Text10"}) {
    EXPECT_EQ(Get(QString::fromLatin1(name))->cursorPosition(), 0) << name;
  }
  EXPECT_EQ(Get(u"Text10"_s)->text(), u"ΑΘΗΝΑ ΚΕΝΤΡΟ"_s);

  view->close();  // answered No: the window stays
  EXPECT_TRUE(view->isVisible());
  EXPECT_EQ(dialogs.questions.size(), 1u);
  EXPECT_FALSE(screens.quit_status.has_value());
}

// With the real message boxes: typed texts are stored, and the box that says
// so stands over the screen already locked, as the logic left it.
class OvtForm1BoxTest : public OvtForm1ViewTest {
 protected:
  OvtForm1BoxTest() : OvtForm1ViewTest(&boxes) {}
  QtDialogs boxes{false};
};

TEST_F(OvtForm1BoxTest, TypingAndSavingStoresTheHeaderUnderTheLockedScreen) {
  Open();
  EXPECT_EQ(Get(u"Text13_2"_s)->text(), u"02/2002"_s);
  const std::pair<QString, QString> typed[] = {
      {u"Text2"_s, u"123"_s},        {u"Text3"_s, u"Αθήνα"_s},     {u"Text4"_s, u"Εταιρεία"_s},
      {u"Text5"_s, u"1234567890"_s}, {u"Text6"_s, u"123456789"_s}, {u"Text7"_s, u"Οδός"_s},
      {u"Text9"_s, u"12345"_s},      {u"Text10"_s, u"Πόλη"_s},     {u"FlDateTxt"_s, u"05032002"_s}};
  for (const auto& [name, text] : typed) {
    TypeInto(*view, name, text);
    QApplication::processEvents();
  }
  QString message;
  bool correct_shown = false;
  bool text2_enabled = true;
  EXPECT_TRUE(AnswerNextBox([&] { Click(*view, u"SaveCmd"_s); },
                            [&](QMessageBox& box) {
                              message = box.text();
                              correct_shown = Get<QPushButton>(u"UpDateCmd"_s)->isVisible();
                              text2_enabled = Get(u"Text2"_s)->isEnabled();
                            }));
  EXPECT_EQ(message, header_texts::kSaveDone);
  EXPECT_TRUE(correct_shown);
  EXPECT_FALSE(text2_enabled);
  const auto row = SelectHeader<EmployerRow>(*store.vars.StoreConnection, 1);
  ASSERT_TRUE(row.has_value());
  EXPECT_EQ(row->orgbra_branch_descr, u"ΑΘΗΝΑ"_s);
  EXPECT_EQ(row->CreateFlDate, u"05/03/2002"_s);
  EXPECT_TRUE(Get<QPushButton>(u"QorInsert"_s)->isEnabled());
}

}  // namespace
}  // namespace veroxia::testing
