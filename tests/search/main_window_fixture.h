#pragma once

#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

#include "forms/list_box.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "game_builder.h"
#include "mainwindow/main_form.h"
#include "search/playeradd_form.h"

// Teams of the small game the window tests play on. Harbour and Bayside are
// Australian, so the main window opens on Harbour with its first player chosen.
inline constexpr int Harbour = 1;
inline constexpr int Bayside = 2;
inline constexpr int Kiwis = 3;
inline constexpr int Newlands = 4;

inline void Click(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }

// Clicks a row of a list as a person would.
inline void ClickRow(ListBox& list, int row)
{
    ASSERT_GE(row, 0);
    ASSERT_LT(row, list.ListCount());
    QListWidgetItem* item = list.item(row);
    list.scrollToItem(item);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(item).center());
}

inline std::vector<QString> Rows(const ListBox& list)
{
    std::vector<QString> rows;
    for (int row = 0; row < list.ListCount(); ++row)
        rows.push_back(list.List(row));
    return rows;
}

// Presses Search in the search window.
inline void Search(PlayerAddForm& form) { Click(form.Command3); }

// Searches with the filters as they stand and picks the candidate with that surname.
inline void SearchAndPick(PlayerAddForm& form, const QString& surname)
{
    Search(form);
    const auto rows = Rows(*form.List1);
    const auto at = std::find(rows.begin(), rows.end(), surname);
    ASSERT_NE(at, rows.end()) << surname.toStdString();
    ClickRow(*form.List1, int(at - rows.begin()));
}

class MainWindowTest : public ::testing::Test {
protected:
    MainWindowTest()
    {
        // Players 1 to 40, named P0001 and so on, with initials A.
        b.Players(40);
        b.Player(1, "Venn", "K");
        b.Player(5, "Quill", "S T");
        b.Team(Harbour, "Harbour CC", {1, 2, 3}).homeCountry = 1;
        b.Team(Bayside, "Bayside", {4, 5}).homeCountry = 1;
        b.Team(Kiwis, "Kiwis XI", {6, 7}).homeCountry = 4;
        b.Team(Newlands, "Newlands", {8}).homeCountry = 4;

        main = std::make_unique<MainForm>(game, SettingPlaces{});
        main->RunStartupChain();
        main->Timer1->stop();
        ClearShownMessages();
        SetMessageAnswerer([this](const ShownMessage&) { return answer; });
    }
    ~MainWindowTest() override
    {
        SetMessageAnswerer({});
        SetModalDriver({});
    }

    // Presses `button` of the main window and gives the name of the window it
    // opened, "" if none; `work` drives the search window if that opens.
    QString Press(QPushButton* button, std::function<void(PlayerAddForm&)> work = {})
    {
        QString opened;
        SetModalDriver([&](QDialog& form) {
            opened = form.objectName();
            if (auto* search = dynamic_cast<PlayerAddForm*>(&form); search && work)
                work(*search);
        });
        Click(button);
        SetModalDriver({});
        return opened;
    }

    // The texts, or the titles, of the messages shown so far, in order.
    static std::vector<QString> Texts() { return Shown(&ShownMessage::text); }
    static std::vector<QString> Titles() { return Shown(&ShownMessage::title); }
    static std::vector<QString> Shown(QString ShownMessage::*part)
    {
        std::vector<QString> parts;
        for (const ShownMessage& m : ShownMessages())
            parts.push_back(m.*part);
        return parts;
    }

    std::vector<QString> SquadRows() const { return Rows(*main->List1); }

    GameBuilder b;
    Game& game = *b.game;
    std::unique_ptr<MainForm> main;
    int answer = IdOk;
};
