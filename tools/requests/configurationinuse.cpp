// SPDX-License-Identifier: MIT
#include "tools/requests/configurationinuse.h"

#include "app/syncsingleton.h"
#include "app/translation.h"
#include "app/ztconfiguration.h"
#include "tools/config/source.h"
#include "tools/requests/divertedoutput.h"
#include "tools/terminal.h"

#include <QCoreApplication>
#include <QFile>

namespace tools {

using namespace Qt::StringLiterals;

void addConfigurationOption(CommandLine &line)
{
    line.addOption(
        {{u"c"_s, u"config"_s},
         u"Prints with the configuration FILE instead of ~/.zentaro/conf/zentaro.conf."_s,
         u"FILE"_s});
}

ConfigurationInUse::~ConfigurationInUse()
{
    QCoreApplication::removeTranslator(&translator);
}

bool ConfigurationInUse::use(const Call &call, const QString &fileName)
{
    const bool isOwn = fileName.isEmpty();
    const QString path = isOwn ? ZTConfiguration::userFile() : fileName;
    missing = isOwn && !QFile::exists(path);
    if (QFile file(path); !missing && !file.open(QIODevice::ReadOnly)) {
        printError(call.command + ": "_L1 + path + ": "_L1 + file.errorString() + u'\n');
        return false;
    }
    // The first use reads the user's own file, whose absence is told by whoever minds it.
    const DivertedOutput diverted(DivertedOutput::Target::Nowhere);
    ZTConfiguration *const configuration = SyncSingleton<ZTConfiguration>::instance();
    if (!isOwn)
        configuration->readFile(path, configtool::formatOf(path));
    QCoreApplication::removeTranslator(&translator);
    if (loadTranslation(translator, *configuration))
        QCoreApplication::installTranslator(&translator);
    return true;
}

} // namespace tools
