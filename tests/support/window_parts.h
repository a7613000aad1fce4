#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QObject>
#include <QString>
#include <QTest>
#include <QTreeWidget>
#include <QWheelEvent>
#include <QWidget>
#include <functional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "forms/message_box.h"
#include "forms/modal.h"

// A failed check shows a QString as its text.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

// Tests reach a window's controls the way the windows name them: each control
// a test works carries an object name for its job.
template <typename Part>
Part& Find(const QObject& window, const char* name)
{
    Part* part = window.findChild<Part*>(QString::fromLatin1(name));
    if (!part)
        throw std::logic_error(std::string("no control named ") + name + " in " +
                               window.objectName().toStdString());
    return *part;
}

// A window's title as its title bar shows it: "[*]" becomes "*" while the
// window is marked modified and nothing otherwise.
inline QString ShownTitle(const QWidget& window)
{
    QString title = window.windowTitle();
    return title.replace(QStringLiteral("[*]"), window.isWindowModified() ? QStringLiteral("*") : QString());
}

// Picks the first entry reading exactly `text`, as a user's pick would:
// activated comes, also for the entry chosen already. False when none reads so.
inline bool Pick(QComboBox& box, const QString& text)
{
    const int entry = box.findText(text);
    if (entry < 0)
        return false;
    box.setCurrentIndex(entry);
    emit box.activated(entry);
    return true;
}

// Clicks a row of a list as a person would.
inline void ClickRow(QListWidget& list, int row)
{
    QListWidgetItem* item = list.item(row);
    if (!item)
        throw std::logic_error("no row " + std::to_string(row));
    list.scrollToItem(item);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(item).center());
}

// Clicks the first row reading exactly `text`; false when none reads so.
inline bool Pick(QListWidget& list, const QString& text)
{
    const QList<QListWidgetItem*> rows = list.findItems(text, Qt::MatchExactly);
    if (rows.isEmpty())
        return false;
    ClickRow(list, list.row(rows.front()));
    return true;
}

// A double click at `at` in a view; its first click arrives as a press of its own.
inline void DoubleClick(QAbstractItemView& view, const QRect& at)
{
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at.center());
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at.center());
}

// The rows of a list or the entries of a drop-down, as the user reads them.
template <typename List>
std::vector<QString> Rows(const List& list)
{
    std::vector<QString> rows;
    for (int row = 0; row < list.count(); ++row)
        rows.push_back(list.model()->index(row, 0).data().toString());
    return rows;
}

// Clicks `button`; `work` drives the modal window it opens when that is a
// Window. The name of the window opened, "" if none.
template <typename Window = QDialog>
QString Press(QAbstractButton& button, const std::function<void(Window&)>& work = {})
{
    QString opened;
    SetModalDriver([&](QDialog& shown) {
        opened = shown.objectName();
        if (auto* window = dynamic_cast<Window*>(&shown); window && work)
            work(*window);
    });
    QTest::mouseClick(&button, Qt::LeftButton);
    SetModalDriver({});
    return opened;
}

// One notch of the wheel, down, over the middle of `control`; whether the
// control took it.
inline bool WheelDown(QWidget& control)
{
    const QPointF middle = QRectF(control.rect()).center();
    QWheelEvent wheel(middle, control.mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&control, &wheel);
    return wheel.isAccepted();
}

// The texts, or another part, of the messages shown so far, in order.
inline std::vector<QString> ShownTexts(QString ShownMessage::*part = &ShownMessage::text)
{
    std::vector<QString> parts;
    for (const ShownMessage& message : ShownMessages())
        parts.push_back(message.*part);
    return parts;
}

// The texts in `column` of the rows under `parent` of a tree.
inline std::vector<QString> Texts(const QTreeWidgetItem& parent, int column = 0)
{
    std::vector<QString> texts;
    for (int row = 0; row < parent.childCount(); ++row)
        texts.push_back(parent.child(row)->text(column));
    return texts;
}

// How a message box looks: its title, icon and buttons.
using BoxLook = std::tuple<QString, QMessageBox::Icon, QMessageBox::StandardButtons::Int>;
inline BoxLook Look(const ShownMessage& message)
{
    return {message.title, message.icon, message.buttons.toInt()};
}
inline BoxLook Look(const QString& title, QMessageBox::Icon icon,
                    QMessageBox::StandardButtons buttons = QMessageBox::Ok)
{
    return {title, icon, buttons.toInt()};
}
