#pragma once

#include <QDialog>
#include <array>
#include <optional>

#include "data/game.h"
#include "forms/control_indexes.h"

// On this window Combo4(5) is the batting-type filter, where the main window
// keeps the team's country.
inline constexpr int BattingFilterCombo = TeamCountryCombo;

class ComboBox;
class FittedLayout;
class ListBox;
class MainForm;
class QLabel;
class QPushButton;
class Shape;
class TextBox;

// The search window: finds players of any club by nationality and type,
// sorts them, shows one in a read-only panel and moves him into the squad
// shown on the main window. It opens in add mode ("Add This Player", which
// may be pressed again and again) or in replace mode ("Replace with this
// player", which closes the window once done). Built afresh for each showing.
class PlayerAddForm : public QDialog {
    Q_OBJECT
public:
    PlayerAddForm(Game& game, MainForm& main, QWidget* parent = nullptr);

    // The opener's steps: every club in the club box, each selector on its
    // catch-all entry, the sort on names.
    void FillSelectors();
    // Replace mode: its caption, its button in place of the add button, and
    // "Cancel" for "Finished".
    void ShowReplaceMode();

    // Search.
    void Command3_Click();
    // Shows the picked candidate in the panel.
    void List1_Click();
    // Add mode: moves the candidate to the end of the squad.
    void Command1_Click();
    // Replace mode: puts the candidate in the place of the main window's
    // chosen player.
    void Command4_Click();
    // Finished or Cancel.
    void Command2_Click();

    // The candidate shown in the panel, if one has been picked.
    std::optional<std::int16_t> Candidate() const;

    // Combo3[0] is the panel's home country, Combo3[1] the nationality filter.
    std::array<ComboBox*, 2> Combo3{};
    // 0 to 4 the panel's codes, 5 to 7 the type filters, 8 the sort key.
    std::array<ComboBox*, 9> Combo4{};
    ComboBox* Combo2 = nullptr;
    ListBox* List1 = nullptr;
    std::array<TextBox*, TextBoxCount> Text1{};  // the panel; team boxes but 8 unused
    std::array<QLabel*, 23> Label2{};            // captions
    QLabel* Label1 = nullptr;
    QLabel* Label3 = nullptr;  // the candidate's number; empty until a pick
    QLabel* Label4 = nullptr;
    Shape* Shape2 = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;
    QPushButton* Command4 = nullptr;

private:
    void BuildFilters(FittedLayout& at);
    void BuildPanel(FittedLayout& at);
    void BuildButtons(FittedLayout& at);
    void ConnectHandlers();

    void SortWithBar();
    void SetBarWidth(double widthTwips);

    Game& game_;
    MainForm& main_;
    int barFullWidth_ = 0;  // pixels of the bar as laid out
};
