// What is asked and told about files that were dropped on a window.
#pragma once

#include <QString>
#include <QWidget>
#include <vector>

#include "ui/dropped_files.h"

namespace velmora {

/// Asks what to do with a file whose name is taken. Enter copies it under the other name and Escape skips it,
/// so that nothing is lost by either.
NameTaken askAboutTaken(QWidget& window, const DroppedFiles::Question& question);

/// What came of the files in one sentence, when each went where it was dropped; else empty.
QString copiedSentence(const std::vector<DroppedFile>& files);

/// Tells in a box, a line each, which files went elsewhere or nowhere. A file that the user skipped is not
/// told of; without any other there is no box.
void tellOfDropped(QWidget& window, const std::vector<DroppedFile>& files);

}  // namespace velmora
