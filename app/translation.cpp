// SPDX-License-Identifier: MIT
#include "app/translation.h"

#include "text/filename.h"

#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

bool loadTranslation(QTranslator &translator, const QString &base, const QString &file)
{
    if (file == "/"_L1)
        return translator.load(text::nameOfFile(text::bytesOf(base)) + "/zentaro_"_L1
                                   + QLocale::system().name(),
                               u"."_s);
    const QString name = base + file;
    return !name.isEmpty() && translator.load(text::nameInFolder(text::bytesOf(name)));
}
