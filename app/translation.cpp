// SPDX-License-Identifier: MIT
#include "app/translation.h"

#include "app/ztconfiguration.h"
#include "text/filename.h"

#include <QLocale>
#include <QTranslator>

#include <climits>

using namespace Qt::StringLiterals;

bool loadTranslation(QTranslator &translator, const QString &base, const QString &file)
{
    if (base.size() + file.size() > PATH_MAX)
        return false; // the toolkit would look for a file by each shorter form of the name
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
