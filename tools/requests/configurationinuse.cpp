// SPDX-License-Identifier: MIT
#include "tools/requests/configurationinuse.h"

#include "app/syncsingleton.h"
#include "app/translation.h"
#include "app/ztconfiguration.h"
#include "text/standardoutput.h"
#include "tools/config/outline.h"
#include "tools/config/source.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace tools {

using namespace Qt::StringLiterals;

namespace {

/// Tells that the store leaves away a part of the file, about which it says nothing. A pipe, which
/// gives its content once, is left alone.
void tellFaults(const Call &call, const configtool::Source &source)
{
    if (!QFileInfo(source.path).isFile())
        return;
    const std::optional<QByteArray> content = configtool::contentOf(call, source);
    if (content && hasError(configtool::readOutline(*content, source.format).faults))
        tellTrouble(call, source.path, u"it has faults, which `zentaro config check` tells"_s);
}

} // namespace

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
        tellTrouble(call, path, file.errorString());
        return false;
    }
    // The first use reads the user's own file, whose absence is told by whoever minds it.
    const text::LineSink quiet(text::LineSink::drop);
    ZTConfiguration *const configuration = SyncSingleton<ZTConfiguration>::instance();
    if (!isOwn)
        configuration->readFile(path, configtool::formatOf(path));
    if (!missing)
        tellFaults(call, {path, isOwn ? u"cfg"_s : configtool::formatOf(path)});
    QCoreApplication::removeTranslator(&translator);
    if (loadTranslation(translator, *configuration))
        QCoreApplication::installTranslator(&translator);
    return true;
}

} // namespace tools
