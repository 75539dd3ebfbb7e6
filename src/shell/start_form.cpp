#include "shell/start_form.h"

#include "rules/texts.h"
#include "shell/errors.h"
#include "shell/registry.h"
#include "shell/store_open.h"
#include "shell/texts.h"

namespace veroxia {

namespace {

const QStringList kKindButtons{QStringLiteral("Command1"), QStringLiteral("Command2"),
                               QStringLiteral("Command3"), QStringLiteral("Command4"),
                               QStringLiteral("Command5")};
const QStringList kCommonFields{QStringLiteral("Month1"), QStringLiteral("Month2"),
                                QStringLiteral("Year1"), QStringLiteral("Year2")};
const QStringList kConFields{QStringLiteral("ConMonth"), QStringLiteral("ConYear")};
const QStringList kFrameButtons{QStringLiteral("OkCmd"), QStringLiteral("CancelCmd")};
// The buttons that leave the focus order while a period is typed.
const QStringList kOutOfOrderInEntry{QStringLiteral("Command1"), QStringLiteral("Command2"),
                                     QStringLiteral("Command3")};

}  // namespace

StartForm::StartForm(Vars& vars, Dialogs& dialogs, Screens& screens)
    : vars_(vars), dialogs_(dialogs), screens_(screens) {
  using namespace texts;
  Declare(QStringLiteral("Img"));
  Declare(QStringLiteral("Command3"), kCommand3);
  Declare(QStringLiteral("Command1"), kCommand1);
  Declare(QStringLiteral("Command4"), kCommand4);
  Declare(QStringLiteral("Command2"), kCommand2);
  Declare(QStringLiteral("Command5"), kCommand5);
  Declare(QStringLiteral("Frame1")).visible = false;
  Declare(QStringLiteral("Label2"), kLabel2);
  Declare(QStringLiteral("Label3"), kLabel3);
  Declare(QStringLiteral("Month1"), {}, 2);
  Declare(QStringLiteral("Year1"), {}, 4);
  Declare(QStringLiteral("Month2"), {}, 2);
  Declare(QStringLiteral("Year2"), {}, 4);
  Declare(QStringLiteral("Frame2")).visible = false;
  Declare(QStringLiteral("Label6"), kLabel6);
  Declare(QStringLiteral("ConMonth"), {}, 2);
  Declare(QStringLiteral("ConYear"), {}, 4);
  Declare(QStringLiteral("OkCmd"), kOkCmd);
  Declare(QStringLiteral("CancelCmd"), kCancelCmd);
}

const QStringList& StartForm::FocusOrder() {
  static const QStringList order{
      QStringLiteral("Command1"), QStringLiteral("Command4"), QStringLiteral("Command2"),
      QStringLiteral("Command5"), QStringLiteral("Command3"), QStringLiteral("Month1"),
      QStringLiteral("Year1"),    QStringLiteral("Month2"),   QStringLiteral("Year2"),
      QStringLiteral("ConMonth"), QStringLiteral("ConYear"),  QStringLiteral("OkCmd"),
      QStringLiteral("CancelCmd")};
  return order;
}

bool StartForm::Load() {
  SetTitle(texts::kTitleStart + texts::kTitleVersion + QString::number(VEROXIA_VERSION_MAJOR) +
           u'.' + QString::number(VEROXIA_VERSION_MINOR) + u')');
  if (!OpenStore(vars_, dialogs_, [&screens = screens_] { screens.Quit(1); })) {
    screens_.Quit(1);
    return false;
  }
  const QString image = vars_.AppDir + QStringLiteral("/ovt.gif");
  image_path_ = FileExists(image) ? image : QString();
  const QString icon = vars_.AppDir + QStringLiteral("/qormain.ico");
  icon_path_ = FileExists(icon) ? icon : QString();
  dialogs_.SetBusy(false);
  return true;
}

void StartForm::Command1_Click() { ChooseKind("QOR_EMPLOYERS", false); }
void StartForm::Command4_Click() { ChooseKind("QOR_EMPLOYERS", true); }
void StartForm::Command2_Click() { ChooseKind("QOR_CON_EMPLOYERS", false); }
void StartForm::Command5_Click() { ChooseKind("QOR_CON_EMPLOYERS", true); }

void StartForm::ChooseKind(const char* table, bool carry_over) {
  header_table_ = QString::fromLatin1(table);
  ShowKindButtons(false);
  At(QStringLiteral("Frame1")).visible = true;
  At(QStringLiteral("Frame2")).visible = ChosenKind() == Kind::Construction;
  EnterPeriodEntry();
  vars_.CarryOver = carry_over;
}

std::optional<Kind> StartForm::ChosenKind() const {
  if (header_table_ == u"QOR_EMPLOYERS") return Kind::Common;
  if (header_table_ == u"QOR_CON_EMPLOYERS") return Kind::Construction;
  return std::nullopt;
}

void StartForm::ShowKindButtons(bool visible) {
  for (const QString& name : kKindButtons) At(name).visible = visible;
}

void StartForm::SetTabStops(const QStringList& names, bool tab_stop) {
  for (const QString& name : names) At(name).tab_stop = tab_stop;
}

void StartForm::EnterPeriodEntry() {
  SetTabStops(kOutOfOrderInEntry, false);
  const bool construction = ChosenKind() == Kind::Construction;
  SetTabStops(kCommonFields, !construction);
  SetTabStops(kConFields, construction);
  GotFocus(construction ? QStringLiteral("ConMonth") : QStringLiteral("Month1"));
  SetTabStops(kFrameButtons, true);
}

void StartForm::GotFocus(const QString& name) {
  if (kCommonFields.contains(name) || kConFields.contains(name)) {
    Select(name, static_cast<int>(Text(name).size()));
  } else {
    SetFocus(name);
  }
}

void StartForm::LeavePeriodEntry() {
  SetTabStops(kOutOfOrderInEntry, true);
  SetTabStops(kCommonFields, false);
  SetTabStops(kConFields, false);
  SetTabStops(kFrameButtons, false);
}

void StartForm::CancelCmd_Click() {
  At(QStringLiteral("Frame1")).visible = false;
  LeavePeriodEntry();
  ShowKindButtons(true);
}

void StartForm::Command3_Click() {
  CloseStore(vars_, dialogs_);
  screens_.Quit(0);
}

void StartForm::OkCmd_Click() {
  if (vars_.CarryOver) {
    StartCarryOverDeclaration();
  } else {
    StartDeclaration();
  }
}

bool StartForm::Report(const std::optional<PeriodFault>& fault) {
  if (!fault) return true;
  dialogs_.Message(fault->message, texts::kAppTitle);
  if (fault->select_length > 0) {
    Select(fault->field, fault->select_length);
  } else {
    SetFocus(fault->field);
  }
  return false;
}

bool StartForm::ValidatePeriod() {
  return Report(CheckCommonPeriod({Text(QStringLiteral("Month1")), Text(QStringLiteral("Year1")),
                                   Text(QStringLiteral("Month2")), Text(QStringLiteral("Year2"))}));
}

bool StartForm::ValidateCon() {
  return Report(CheckConPeriod(Text(QStringLiteral("ConMonth")), Text(QStringLiteral("ConYear"))));
}

void StartForm::StartDeclaration() { Settle(false); }

void StartForm::StartCarryOverDeclaration() { Settle(true); }

void StartForm::Settle(bool carry_over) {
  const auto kind = ChosenKind();
  if (!kind) return;
  if (!(*kind == Kind::Common ? ValidatePeriod() : ValidateCon())) return;
  const PeriodTexts period =
      *kind == Kind::Common
          ? PeriodTexts{Text(QStringLiteral("Month1")), Text(QStringLiteral("Year1")),
                        Text(QStringLiteral("Month2")), Text(QStringLiteral("Year2"))}
          : PeriodTexts{Text(QStringLiteral("ConMonth")), Text(QStringLiteral("ConYear")), {}, {}};
  RegistryAnswer answer;
  try {
    BusyPointer busy(dialogs_);
    answer = SettleDeclaration(*vars_.StoreConnection, *kind, period, carry_over);
  } catch (const StoreError& error) {
    dialogs_.Message(ErrorMessage(texts::kRegistryFailed, error), texts::kAppTitle);
    return;
  }
  if (!answer.message.isEmpty()) dialogs_.Message(answer.message, texts::kAppTitle);
  if (answer.refused) return;
  vars_.DeclarationId = answer.declaration_id;
  vars_.CarryOver = answer.carry_over;
  if (answer.carry_over) vars_.PreviousDeclarationId = answer.previous_id;
  OpenHeaderScreen();
}

void StartForm::OpenHeaderScreen() {
  const auto kind = ChosenKind();
  if (!kind) return;
  if (*kind == Kind::Construction) {
    vars_.PeriodFrom = Text(QStringLiteral("ConMonth")) + Text(QStringLiteral("ConYear"));
  } else {
    vars_.PeriodFrom = Text(QStringLiteral("Month1")) + Text(QStringLiteral("Year1"));
    vars_.PeriodTo = Text(QStringLiteral("Month2")) + Text(QStringLiteral("Year2"));
  }
  screens_.ShowHeader(*kind);
}

}  // namespace veroxia
