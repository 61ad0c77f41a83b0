// SPDX-License-Identifier: MIT
#pragma once

#include "tools/preview/picture.h"

/// Pictures as files. Needs a QGuiApplication, and no display.
namespace preview {

enum class PictureFormat { Png, Svg, Pdf };

/// The format that a file name ends in, in any letter case; nothing for another ending.
std::optional<PictureFormat> pictureFormatOf(const QString &fileName);

/// Writes the file, which is replaced when the new one is complete. Answers why it could not be
/// written, and an empty text when it was.
QString writePicture(const Picture &picture, const QString &fileName, PictureFormat format);

} // namespace preview
