// The header window of either kind, wired: real widgets, typed into and
// clicked, and read with long stored values in the view and the edit state.

#include "gui/header_view.h"
#include "gui/app_font.h"
#include "gui/driver.h"
#include "gui/qt_dialogs.h"
#include "header/texts.h"

namespace veroxia::testing {
namespace {

using Typed = std::vector<std::pair<QString, QString>>;

// What differs between the kinds' header windows.
struct HeaderKind {
  const char* name;
  std::function<std::unique_ptr<HeaderForm>(Vars&, Dialogs&, Screens&)> form;
  std::function<std::unique_ptr<HeaderView>(HeaderForm&)> view;
  Typed valid;  // a header that passes the checks
};

void PrintTo(const HeaderKind& kind, std::ostream* out) { *out << kind.name; }

template <class F, class V>
HeaderKind KindOf(const char* name, Typed valid) {
  return {name,
          [](Vars& vars, Dialogs& dialogs, Screens& screens) -> std::unique_ptr<HeaderForm> {
            return std::make_unique<F>(vars, dialogs, screens);
          },
          [](HeaderForm& form) -> std::unique_ptr<HeaderView> {
            return std::make_unique<V>(static_cast<F&>(form));
          },
          std::move(valid)};
}

class HeaderViewTest : public ::testing::TestWithParam<HeaderKind> {
 protected:
  HeaderViewTest() {
    store.Open();
    store.vars.DeclarationId = 1;
    store.vars.PeriodFrom = u"012002"_s;
    store.vars.PeriodTo = u"032002"_s;
  }

  // The form, speaking through `with`, loaded.
  void Load(Dialogs& with) {
    form = GetParam().form(store.vars, with, screens);
    form->Load();
  }

  void Open() {
    view = GetParam().view(*form);
    ShowActive(*view);
  }

  template <class W = QLineEdit>
  W* Get(const QString& name) {
    return Find<W>(*view, name);
  }

  TempStore store;
  FakeDialogs dialogs;
  QtDialogs boxes{false};  // the real message boxes
  FakeScreens screens;
  std::unique_ptr<HeaderForm> form;
  std::unique_ptr<HeaderView> view;
};

// Locked boxes (the period, the month labels) show their values in a colour
// that stands out from the locked box's background. With the real message
// boxes: typed texts are stored, and the box that says so stands over the
// screen already locked, as the logic left it.
TEST_P(HeaderViewTest, EveryControlHasItsWidgetTypedTextsAreStoredUnderTheLockedScreen) {
  EXPECT_NEAR(ContrastRatio(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
  UseReadableDisabledText();
  Load(boxes);
  Open();
  const QLineEdit* locked = Get(form->Layout().from_month_field);
  ASSERT_FALSE(locked->isEnabled());
  EXPECT_GE(ContrastRatio(locked->palette().color(QPalette::Disabled, QPalette::Text),
                          locked->palette().color(QPalette::Disabled, QPalette::Base)),
            kReadableContrast);
  for (const QString& name : form->Names()) {
    EXPECT_NE(view->findChild<QWidget*>(name), nullptr) << name.toStdString();
  }
  for (const HeaderField& field : form->Layout().fields) {
    const QLineEdit* box = field.visible ? Get(field.name) : nullptr;
    EXPECT_TRUE(box == nullptr || box->isVisible()) << field.name.toStdString();
  }
  EXPECT_EQ(Focused(*view), u"Text2"_s);
  EXPECT_EQ(locked->text(), u"01"_s);
  Click(*view, u"Option1_1"_s);
  EXPECT_EQ(form->Text(u"Text1"_s), u"02"_s);
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
  Click(*view, u"Option1_0"_s);  // back to the type the valid header is of
  for (const auto& [name, text] : GetParam().valid) {
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
  EXPECT_TRUE(Get<QPushButton>(form->Layout().lines_button)->isEnabled());
  auto stored = GetParam().form(store.vars, dialogs, screens);  // reads the stored header
  stored->Load();
  EXPECT_EQ(stored->Text(u"Text3"_s), u"ΑΘΗΝΑ"_s);
  EXPECT_EQ(stored->Text(u"FlDateTxt"_s), u"05/03/2002"_s);
}

// A header whose texts fill their fields, the branch code aside, stored as
// the screen stores it. (The binder's own test shows the texts from their
// start, and moves the focus where the logic puts it.)
TEST_P(HeaderViewTest, LongStoredValuesAreReadableInBothStatesAndTheCloseBoxAsks) {
  Load(dialogs);
  const QString long_text = QString(80, u'Ε');
  for (const HeaderField& field : form->Layout().fields) {
    if (field.visible && field.insert_as != StoreAs::Date) {
      form->At(field.name).text = long_text.left(field.max_length);
    }
  }
  form->At(u"Text2"_s).text = u"051"_s;
  form->SaveData();
  Open();
  ExpectNothingCut(*view);
  Click(*view, u"TotalsCmd"_s);  // the view state's checks open their report
  EXPECT_EQ(dialogs.reports.size(), 1u);
  Click(*view, u"VolumesCmd"_s);  // cancelled in the directory dialog
  EXPECT_EQ(dialogs.directories_asked, 1);
  // Every box shows all it may hold; one longer than the window 36 characters.
  for (QLineEdit* box : view->findChildren<QLineEdit*>()) {
    if (!box->isVisible() || !box->inputMask().isEmpty()) continue;
    const int shown = std::min(box->maxLength(), 36);
    EXPECT_TRUE(ShowsWhole(*box, QString(shown, u'0'))) << box->objectName().toStdString();
  }

  Click(*view, u"UpDateCmd"_s);  // the edit state's buttons
  ExpectNothingCut(*view);

  view->close();  // answered No: the window stays
  EXPECT_TRUE(view->isVisible());
  EXPECT_EQ(dialogs.questions.size(), 1u);
  EXPECT_FALSE(screens.quit_status.has_value());
}

const Typed kCommonValid = {
    {u"Text2"_s, u"123"_s},        {u"Text3"_s, u"Αθήνα"_s},     {u"Text4"_s, u"Εταιρεία"_s},
    {u"Text5"_s, u"1234567890"_s}, {u"Text6"_s, u"094014201"_s}, {u"Text7"_s, u"Οδός"_s},
    {u"Text9"_s, u"12345"_s},      {u"Text10"_s, u"Πόλη"_s},     {u"FlDateTxt"_s, u"05032002"_s}};
const Typed kConstructionValid = {
    {u"Text2"_s, u"123"_s},        {u"Text3"_s, u"Αθήνα"_s},       {u"Text4"_s, u"Εταιρεία"_s},
    {u"Text5"_s, u"Οδός"_s},       {u"Text7"_s, u"12345"_s},       {u"Text8"_s, u"Πόλη"_s},
    {u"Text9"_s, u"Οδός"_s},       {u"Text10"_s, u"1234567890"_s}, {u"Text11"_s, u"1234567890"_s},
    {u"Text12"_s, u"094014201"_s}, {u"Text13"_s, u"Οδός"_s},       {u"Text15"_s, u"12345"_s},
    {u"Text16"_s, u"Πόλη"_s},      {u"FlDateTxt"_s, u"05032002"_s}};

INSTANTIATE_TEST_SUITE_P(
    Kinds, HeaderViewTest,
    ::testing::Values(KindOf<OvtForm1, OvtForm1View>("Common", kCommonValid),
                      KindOf<OvtForm3, OvtForm3View>("Construction", kConstructionValid)),
    [](const ::testing::TestParamInfo<HeaderKind>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace veroxia::testing
