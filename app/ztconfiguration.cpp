// SPDX-License-Identifier: MIT
#include "app/ztconfiguration.h"

#include "text/filename.h"

using namespace Qt::StringLiterals;

namespace {

QString inLatin1(const QString &text)
{
    return QString::fromLatin1(text.toLatin1());
}

} // namespace

ZTConfiguration::ZTConfiguration()
{
    readFile(userFile(), u"cfg"_s);
}

ZTConfiguration::ZTConfiguration(const QString &fileName, const QString &fileType)
    : Config(fileName, fileType)
{
}

QString ZTConfiguration::userFile()
{
    return text::nameInFolder(text::homeFolder() + "/.zentaro/conf/zentaro.conf");
}

QString ZTConfiguration::getStrValue(const QString &key) const
{
    return inLatin1(lookup(inLatin1(key)));
}
