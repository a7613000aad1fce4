#pragma once

#include <QObject>
#include <QString>
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
