// SPDX-License-Identifier: MIT
#include "tools/requests/configurationinuse.h"

#include "app/syncsingleton.h"
#include "app/translation.h"
#include "app/ztconfiguration.h"
#include "text/standardoutput.h"
#include "tools/config/settingcheck.h"
#include "tools/config/source.h"

#include <QCoreApplication>

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
    const configtool::Source source{path, isOwn ? u"cfg"_s : configtool::formatOf(path)};
    missing = isOwn && configtool::isMissing(path);
    const auto content = missing ? QByteArray() : configtool::contentOf(call, source);
    if (!content)
        return false;
    // The first use reads the user's own file, whose absence is told by whoever minds it.
    const text::LineSink quiet(text::LineSink::drop);
    ZTConfiguration *const configuration = SyncSingleton<ZTConfiguration>::instance();
    if (!isOwn)
        configuration->readContent(*content, path, source.format);
    if (hasError(configtool::findingsIn(configtool::readOutline(*content, source.format))))
        tellTrouble(call, path, u"it has faults, which `zentaro config check` tells"_s);
    QCoreApplication::removeTranslator(&translator);
    if (loadTranslation(translator, *configuration))
        QCoreApplication::installTranslator(&translator);
    return true;
}

} // namespace tools
