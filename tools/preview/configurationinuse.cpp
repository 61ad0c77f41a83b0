// SPDX-License-Identifier: MIT
#include "tools/preview/configurationinuse.h"

#include "app/syncsingleton.h"
#include "app/translation.h"
#include "app/ztconfiguration.h"
#include "tools/config/source.h"
#include "tools/preview/rendering.h"

#include <QCoreApplication>
#include <QFile>

namespace preview {

ConfigurationInUse::~ConfigurationInUse()
{
    QCoreApplication::removeTranslator(&translator);
}

void ConfigurationInUse::useOwn()
{
    const DivertedOutput diverted(DivertedOutput::Target::Errors);
    translate(*SyncSingleton<ZTConfiguration>::instance());
}

QString ConfigurationInUse::use(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    // The first use reads the user's own file, whose absence matters nothing here.
    const DivertedOutput diverted(DivertedOutput::Target::Nowhere);
    ZTConfiguration *const configuration = SyncSingleton<ZTConfiguration>::instance();
    configuration->readFile(fileName, configtool::formatOf(fileName));
    translate(*configuration);
    return {};
}

void ConfigurationInUse::translate(const ZTConfiguration &configuration)
{
    QCoreApplication::removeTranslator(&translator);
    if (loadTranslation(translator, configuration))
        QCoreApplication::installTranslator(&translator);
}

} // namespace preview
