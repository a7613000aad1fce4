#pragma once

#include <QImageReader>
#include <QPixmap>
#include <QString>

// The editor's own pictures, built into the program as Qt resources.
namespace kolta::artwork {

inline constexpr const char* Icon = ":/artwork/icon.png";            // 32x32: window icon, About window
inline constexpr const char* Banner = ":/artwork/banner.png";        // 400x100: main window, opens the user guide
inline constexpr const char* Scorecard = ":/artwork/scorecard.png";  // 270x135: main window, opens the file formats

// All of them are PNG, which Qt reads itself. Left to guess, Qt would load
// every image plugin it has and ask each, a few milliseconds of the start.
inline QPixmap Picture(const char* path)
{
    QImageReader reader(QString::fromLatin1(path), "PNG");
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImage(reader.read());
}

}  // namespace kolta::artwork
