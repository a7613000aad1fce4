#pragma once

#include <QString>
#include <QTextStream>

// The help text and the two pages ship with the program: beside it in a
// build folder and on Windows, under share/kolta-editor when installed on
// Linux. The full path of `name`; beside the program when it is nowhere.
QString ShippedFile(const QString& name);

// For packagers: prints where each shipped file was found, or that it is
// missing; false when one is.
bool ReportShippedFiles(QTextStream& out);
