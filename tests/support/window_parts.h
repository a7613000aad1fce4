#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <stdexcept>
#include <string>

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
