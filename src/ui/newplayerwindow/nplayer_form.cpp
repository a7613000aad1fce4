#include "newplayerwindow/nplayer_form.h"

#include <QLabel>
#include <QPushButton>
#include <string_view>

#include "data/code_lists.h"
#include "forms/combo_box.h"
#include "forms/game_text.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "forms/text_box.h"
#include "forms/fitted_layout.h"
#include "mainwindow/main_form.h"
#include "options/help_form.h"

namespace {

// Client area, in twips.
constexpr int AreaWidth = 6900;
constexpr int AreaHeight = 3675;

// The two columns of captions, each left of its column of controls.
constexpr int LeftCaptions = 300;
constexpr int RightCaptions = 3540;
constexpr int CaptionWidth = 1335;

constexpr int Backspace = 8;

template <std::size_t N>
ComboBox* MakeCodeList(FittedLayout& at, QWidget* form, const std::array<std::string_view, N>& words, QRect rect)
{
    auto* box = at.Put(new ComboBox(form), rect, true);
    for (std::string_view word : words)
        box->AddItem(FromGame(word));
    return box;
}

QPushButton* MakeButton(FittedLayout& at, QWidget* form, const QString& caption, QRect rect)
{
    return at.Put(new QPushButton(caption, form), rect, true);
}

void ShowOutcome(NewPlayerOutcome outcome)
{
    switch (outcome) {
    case NewPlayerOutcome::Added:
        return;
    case NewPlayerOutcome::BadEntries:
        MsgBox(QStringLiteral("Data not in correct range.Please see help for correct range of data values."),
               MbInformation, QStringLiteral("Error"));
        return;
    case NewPlayerOutcome::TableFull:
        MsgBox(QStringLiteral("The game already holds its maximum of %1 players.").arg(MaxPlayers),
               MbInformation, QStringLiteral("Maximum Players"));
        return;
    case NewPlayerOutcome::NoTeam:
        MsgBox(QStringLiteral("Choose a team for the new player first."), MbInformation,
               QStringLiteral("Add New Player"));
        return;
    case NewPlayerOutcome::SquadFull:
        MsgBox(QStringLiteral("You already have the maximum of 20 players in the squad."), MbInformation,
               QStringLiteral("Maximum Players"));
        return;
    }
}

}  // namespace

NPlayerForm::NPlayerForm(Game& game, MainForm& main, QWidget* parent)
    : QDialog(parent), game_(game), main_(main)
{
    setObjectName(QStringLiteral("nplayer"));
    setWindowTitle(QStringLiteral("New Player"));
    FittedLayout at(this, {AreaWidth, AreaHeight});

    // Built in tab order, so that the focus starts on OK.
    Command1 = MakeButton(at, this, QStringLiteral("OK"), QRect(1200, 3180, 1395, 375));
    Command1->setDefault(true);

    AddCaption(at, QStringLiteral("Player Name"), QRect(LeftCaptions, 240, CaptionWidth, 315));
    AddTextBox(at, InitialsBox, QRect(1680, 240, 435, 315), 0);
    AddTextBox(at, SurnameBox, QRect(2160, 240, 1275, 315), 0);

    AddCaption(at, QStringLiteral("Date of birth"), QRect(LeftCaptions, 660, CaptionWidth, 255));
    AddTextBox(at, DayBox, QRect(1680, 660, 375, 255), 2);
    AddCaption(at, QStringLiteral("/"), QRect(2100, 660, 135, 255));
    AddTextBox(at, MonthBox, QRect(2280, 660, 375, 255), 2);
    AddCaption(at, QStringLiteral("/"), QRect(2700, 660, 135, 255));
    AddTextBox(at, YearBox, QRect(2880, 660, 555, 255), 4);

    AddCaption(at, QStringLiteral("Home Country"), QRect(LeftCaptions, 1020, CaptionWidth, 315));
    Combo3 = MakeCodeList(at, this, CountryList, QRect(1680, 1020, 1755, 315));
    AddCaption(at, QStringLiteral("Bat position"), QRect(LeftCaptions, 1440, CaptionWidth, 315));
    Combo4[BatPositionCombo] = MakeCodeList(at, this, BatPositionList, QRect(1680, 1440, 1755, 315));
    AddCaption(at, QStringLiteral("Bats"), QRect(LeftCaptions, 1860, CaptionWidth, 315));
    Combo4[BatsCombo] = MakeCodeList(at, this, HandList, QRect(1680, 1860, 1755, 315));
    AddCaption(at, QStringLiteral("Bat skill"), QRect(LeftCaptions, 2280, CaptionWidth, 255));
    AddTextBox(at, BatSkillBox, QRect(1680, 2280, 1695, 255), 2);
    AddCaption(at, QStringLiteral("Bat aggr."), QRect(LeftCaptions, 2640, CaptionWidth, 255));
    AddTextBox(at, BatAggressionBox, QRect(1680, 2640, 1695, 255), 2);

    AddCaption(at, QStringLiteral("Bowl Type"), QRect(RightCaptions, 300, CaptionWidth, 315));
    Combo4[BowlTypeCombo] = MakeCodeList(at, this, BowlTypeList, QRect(4920, 300, 1695, 315));
    AddCaption(at, QStringLiteral("Bowls"), QRect(RightCaptions, 720, CaptionWidth, 315));
    Combo4[BowlsCombo] = MakeCodeList(at, this, HandList, QRect(4920, 720, 1695, 315));
    AddCaption(at, QStringLiteral("Bowl Skill"), QRect(RightCaptions, 1140, CaptionWidth, 255));
    AddTextBox(at, BowlSkillBox, QRect(4920, 1140, 1695, 255), 2);
    AddCaption(at, QStringLiteral("Bowl Economy"), QRect(RightCaptions, 1500, CaptionWidth, 255));
    AddTextBox(at, BowlEconomyBox, QRect(4920, 1500, 1695, 255), 2);
    AddCaption(at, QStringLiteral("Field ability"), QRect(RightCaptions, 1860, CaptionWidth, 255));
    AddTextBox(at, FieldAbilityBox, QRect(4920, 1860, 1695, 255), 2);
    AddCaption(at, QStringLiteral("Fields at"), QRect(RightCaptions, 2220, CaptionWidth, 315));
    Combo4[FieldsAtCombo] = MakeCodeList(at, this, FieldPositionList, QRect(4920, 2220, 1695, 315));
    AddCaption(at, QStringLiteral("Potential"), QRect(RightCaptions, 2640, CaptionWidth, 255));
    AddTextBox(at, PotentialBox, QRect(4920, 2640, 1695, 255), 2);

    Command2 = MakeButton(at, this, QStringLiteral("Cancel"), QRect(3000, 3180, 1395, 375));
    Command3 = MakeButton(at, this, QStringLiteral("Help"), QRect(4800, 3180, 1395, 375));

    at.Apply();

    connect(Command1, &QPushButton::clicked, this, &NPlayerForm::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &NPlayerForm::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &NPlayerForm::Command3_Click);
    Command1->setFocus();

    Form_Load();
}

TextBox* NPlayerForm::AddTextBox(FittedLayout& at, int index, QRect rect, int maxLength)
{
    auto* box = at.Put(new TextBox(this), rect);
    if (maxLength > 0)
        box->setMaxLength(maxLength);
    box->SetKeyFilter([this, index](int& keyAscii) { Text1_KeyPress(index, keyAscii); });
    if (index == InitialsBox || index == SurnameBox)
        box->SetTextRule(IsStorableName);
    Text1[index] = box;
    return box;
}

void NPlayerForm::AddCaption(FittedLayout& at, const QString& caption, QRect rect)
{
    auto* label = at.Put(new QLabel(caption, this), rect, true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void NPlayerForm::Form_Load()
{
    Combo3->setCurrentIndex(0);
    for (ComboBox* box : Combo4)
        box->setCurrentIndex(0);
}

void NPlayerForm::Text1_KeyPress(int index, int& keyAscii)
{
    if (index == SurnameBox || index == InitialsBox)
        return;
    if ((keyAscii >= '0' && keyAscii <= '9') || keyAscii == Backspace)
        return;
    keyAscii = 0;  // the text box answers a refused key with the beep
}

NewPlayerEntries NPlayerForm::Entries() const
{
    const auto text = [this](int index) { return ToGame(Text1[index]->Text()); };
    NewPlayerEntries entries;
    entries.initials = text(InitialsBox);
    entries.surname = text(SurnameBox);
    entries.birthDay = text(DayBox);
    entries.birthMonth = text(MonthBox);
    entries.birthYear = text(YearBox);
    entries.batSkill = text(BatSkillBox);
    entries.batAggression = text(BatAggressionBox);
    entries.bowlSkill = text(BowlSkillBox);
    entries.bowlEconomy = text(BowlEconomyBox);
    entries.fieldAbility = text(FieldAbilityBox);
    entries.potential = text(PotentialBox);
    entries.homeCountry = Combo3->ListIndex();
    entries.batPosition = Combo4[BatPositionCombo]->ListIndex();
    entries.bats = Combo4[BatsCombo]->ListIndex();
    entries.bowlType = Combo4[BowlTypeCombo]->ListIndex();
    entries.bowls = Combo4[BowlsCombo]->ListIndex();
    entries.fieldsAt = Combo4[FieldsAtCombo]->ListIndex();
    return entries;
}

void NPlayerForm::Command1_Click()
{
    const NewPlayerOutcome outcome = CommitNewPlayer(game_, main_.CurrentTeam().value_or(0), Entries());
    if (outcome != NewPlayerOutcome::Added) {
        ShowOutcome(outcome);
        return;
    }
    main_.ReselectCurrentTeam();
    accept();
}

void NPlayerForm::Command2_Click()
{
    reject();
}

void NPlayerForm::Command3_Click()
{
    HelpForm help;
    ShowModal(help, this);
}

void OpenNewPlayerWindow(Game& game, MainForm& main)
{
    if (!CanAddNewPlayer(game)) {
        ShowOutcome(NewPlayerOutcome::TableFull);
        return;
    }
    NPlayerForm form(game, main);
    ShowModal(form, &main);
}
