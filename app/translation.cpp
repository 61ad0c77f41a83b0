// SPDX-License-Identifier: MIT
#include "app/translation.h"

#include "app/ztconfiguration.h"
#include "text/system.h"

#include <QLocale>
#include <QTranslator>

#include <climits>

using namespace Qt::StringLiterals;

std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    const QByteArray locale = qgetenv("LC_ALL");
    qputenv("LC_ALL", "C");
    qputenv("QT_NO_GLIB", "1");
    auto application = std::make_unique<QCoreApplication>(argc, argv);
    if (locale.isNull())
        qunsetenv("LC_ALL");
    else
        qputenv("LC_ALL", locale);
    return application;
}

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
