#include "editor/editor.h"

#include "forms/first_paint.h"

Editor::Editor(SettingPlaces places, std::unique_ptr<Game> game)
    : document_(std::move(game)), files_(document_, std::move(places)), tools_(document_),
      window_(document_, files_, tools_)
{
    // The bar under the menu says whether the game holds errors: counted
    // again after every step, and with the files whenever they were written.
    QObject::connect(&document_, &GameDocument::recordsChanged, &tools_, &GameTools::Recount);
    QObject::connect(&files_, &GameFiles::saved, &tools_, &GameTools::CheckFiles);
}

bool Editor::Start()
{
    if (!files_.Start(&window_))
        return false;
    // The first paint needs the records and the window only. The check of the
    // whole game, the mark of the folder as open here and the watch of its
    // files follow right after it.
    AfterFirstPaint(window_, [this] {
        files_.FinishStart();
        tools_.CheckFiles();
        QObject::connect(&document_, &GameDocument::gameReplaced, &tools_, &GameTools::CheckFiles);
        started_ = true;
    });
    return true;
}
