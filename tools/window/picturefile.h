// SPDX-License-Identifier: MIT
#pragma once

#include "tools/preview/paper.h"

namespace preview {

/// Draws the sheets into a file, in rows beside each other; each row is a page of a PDF. The file
/// is replaced when the new one is complete. Answers why it could not be written, and an empty text
/// when it was. Needs a QGuiApplication, and no display.
QString writePicture(const std::vector<Sheet> &sheets, const PictureOptions &options);

} // namespace preview
