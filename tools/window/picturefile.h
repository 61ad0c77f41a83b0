// SPDX-License-Identifier: MIT
#pragma once

#include "tools/preview/picture.h"

/// Pictures as files. Needs a QGuiApplication, and no display.
namespace preview {

/// Writes the file, which is replaced when the new one is complete. Answers why it could not be
/// written, and an empty text when it was.
QString writePicture(const Picture &picture, const QString &fileName, PictureFormat format);

} // namespace preview
