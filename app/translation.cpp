// SPDX-License-Identifier: MIT
#include "app/translation.h"

#include "app/ztconfiguration.h"
#include "text/filename.h"

#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// No path is longer. The toolkit looks for a file by each shorter form of the name.
constexpr qsizetype MaxNameBytes = 4'096;

} // namespace

bool loadTranslation(QTranslator &translator, const QString &base, const QString &file)
{
    if (base.size() + file.size() > MaxNameBytes)
        return false;
    if (file == "/"_L1)
        return translator.load(text::nameOfFile(text::bytesOf(base)) + "/zentaro_"_L1
                                   + QLocale::system().name(),
                               u"."_s);
    const QString name = base + file;
    return !name.isEmpty() && translator.load(text::nameInFolder(text::bytesOf(name)));
}

bool loadTranslation(QTranslator &translator, const ZTConfiguration &config)
{
    return loadTranslation(translator, config.getStrValue(u"zentaro.language.basedir"_s),
                           config.getStrValue(u"zentaro.language.file"_s));
}
