#pragma once

#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

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

// Clicks a row of a list as a person would.
inline void ClickRow(ListBox& list, int row)
{
    ASSERT_GE(row, 0);
    ASSERT_LT(row, list.ListCount());
    QListWidgetItem* item = list.item(row);
    list.scrollToItem(item);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(item).center());
}

class MainWindowTest : public ::testing::Test {
protected:
    MainWindowTest()
    {
        // Players 1 to 40, named P0001 and so on, with initials A.
        b.Players(40);
        game.Players[1].surname = "Venn";
        game.Players[1].initials = "K";
        game.Players[5].surname = "Quill";
        game.Players[5].initials = "S T";
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

    // Presses `button` of the main window; `work` drives the search window if
    // one opens. Tells whether one opened.
    bool Press(QPushButton* button, std::function<void(PlayerAddForm&)> work = {})
    {
        bool opened = false;
        SetModalDriver([&](QDialog& form) {
            opened = true;
            if (work)
                work(dynamic_cast<PlayerAddForm&>(form));
        });
        QTest::mouseClick(button, Qt::LeftButton);
        SetModalDriver({});
        return opened;
    }

    // Presses `button` and gives the name of the window it opened, if any.
    QString OpenedBy(QPushButton* button)
    {
        QString opened;
        SetModalDriver([&](QDialog& form) { opened = form.objectName(); });
        QTest::mouseClick(button, Qt::LeftButton);
        SetModalDriver({});
        return opened;
    }

    // The texts, or the titles, of the messages shown so far, in order.
    static std::vector<QString> Texts()
    {
        std::vector<QString> texts;
        for (const ShownMessage& m : ShownMessages())
            texts.push_back(m.text);
        return texts;
    }
    static std::vector<QString> Titles()
    {
        std::vector<QString> titles;
        for (const ShownMessage& m : ShownMessages())
            titles.push_back(m.title);
        return titles;
    }

    // The rows of the main window's squad list.
    std::vector<QString> SquadRows() const
    {
        std::vector<QString> rows;
        for (int row = 0; row < main->List1->ListCount(); ++row)
            rows.push_back(main->List1->List(row));
        return rows;
    }

    GameBuilder b;
    Game& game = *b.game;
    std::unique_ptr<MainForm> main;
    int answer = IdOk;
};
