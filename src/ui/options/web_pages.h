#pragma once

#include <QString>
#include <QUrl>
#include <functional>

// The two pages that ship with the program and open from the main window's
// pictures: the user guide and the layout of the game's files.
QUrl UserGuidePage();
QUrl FileFormatsPage();

// Opens `page` in the desktop's browser and returns at once; each call may
// open a further browser window. When the page is missing or no browser
// starts, a short message says so and the program goes on.
void OpenWebPage(const QUrl& page);

// For tests: called instead of the desktop's browser; gives whether it worked.
using PageOpener = std::function<bool(const QUrl& page)>;
void SetPageOpener(PageOpener opener);  // empty: the desktop's browser
