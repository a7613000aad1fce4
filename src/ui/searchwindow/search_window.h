#pragma once

#include <QDialog>
#include <optional>

#include "search/search_filters.h"

class ChoiceList;
class FittedLayout;
class GameDocument;
class PlayerColumn;
class QComboBox;
class QPushButton;
class TextBox;

// The search window: finds players of any club by nationality and type,
// sorts them, shows one in a read-only panel and moves him into the squad of
// the team it was opened for, each move a step of the document. It opens in
// add mode ("Add This Player", which may be pressed again and again) or in
// replace mode ("Replace with this player", which closes the window once
// done). Built afresh for each showing.
class SearchWindow : public QDialog {
    Q_OBJECT
public:
    enum class Mode { Add, Replace };

    // `squadRow` is the chosen row of the team's squad list, the player a
    // replacement puts out; -1 when none is chosen.
    SearchWindow(GameDocument& document, int team, Mode mode, int squadRow, QWidget* parent = nullptr);

    // The candidate shown in the panel, if one has been picked.
    std::optional<std::int16_t> Candidate() const;

private:
    void BuildFilters(FittedLayout& at);
    void BuildPanel(FittedLayout& at);
    void BuildButtons(FittedLayout& at);
    void ConnectHandlers();
    // Every club in the club box, each selector on its catch-all entry, the
    // sort on names.
    void FillSelectors();
    // Replace mode: its caption, its button in place of the add button, and
    // "Cancel" for "Finished".
    void ShowReplaceMode();

    void OnSearch();
    // Shows the picked candidate in the panel.
    void OnCandidateChosen();
    // The candidate and his present club as they stand now.
    void ShowCandidate();
    // No candidate picked: the panel is empty.
    void ShowNoCandidate();
    // Add mode: moves the candidate to the end of the squad.
    void OnAddThisPlayer();
    // Replace mode: puts the candidate in the place of the chosen squad row.
    void OnReplaceWithThisPlayer();

    void SortWithBar();
    // The bar as long as the share `done` of the sort.
    void ShowSortProgress(double done);

    GameDocument& document_;
    const int team_;
    const int squadRow_;

    QComboBox* nationalityFilter_ = nullptr;
    QComboBox* clubFilter_ = nullptr;
    QComboBox* battingFilter_ = nullptr;
    QComboBox* bowlingFilter_ = nullptr;
    QComboBox* fieldingFilter_ = nullptr;
    QComboBox* sortKeyList_ = nullptr;
    QPushButton* searchButton_ = nullptr;
    QWidget* sortBar_ = nullptr;
    ChoiceList* resultList_ = nullptr;
    PlayerColumn* candidatePanel_ = nullptr;
    TextBox* presentClubBox_ = nullptr;
    QPushButton* addButton_ = nullptr;
    QPushButton* replaceButton_ = nullptr;
    QPushButton* finishedButton_ = nullptr;

    int barFullWidth_ = 0;  // pixels of the bar as laid out
    SearchRows results_;
    std::optional<int> pickedNumber_;  // the item data of the last row picked
};
