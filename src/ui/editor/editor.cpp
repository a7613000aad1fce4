#include "editor/editor.h"

Editor::Editor(SettingPlaces places, std::unique_ptr<Game> game)
    : document_(std::move(game)), files_(document_, std::move(places)), tools_(document_),
      window_(document_, files_, tools_)
{
    // Whenever the files were read or written, the bar under the menu says
    // whether they hold errors.
    QObject::connect(&document_, &GameDocument::gameReplaced, &tools_, &GameTools::CheckFiles);
    QObject::connect(&files_, &GameFiles::saved, &tools_, &GameTools::CheckFiles);
}

bool Editor::Start()
{
    return files_.Start(&window_);
}
