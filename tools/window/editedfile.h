// SPDX-License-Identifier: MIT
#pragma once

#include "config/config.h"
#include "tools/config/source.h"

#include <QFileInfo>

namespace configtool {

/// The store of a file that need not be there yet: it is empty then, and nothing is told.
class EditedFile : public libconfig::Config
{
public:
    explicit EditedFile(const Source &source)
    {
        if (QFileInfo::exists(source.path)) {
            readFile(source.path, source.format);
            return;
        }
        fileName = source.path;
        fileType = source.format;
    }
};

} // namespace configtool
