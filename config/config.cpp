// SPDX-License-Identifier: MIT
// The lower floor: what a program needs that only asks a "cfg" file for its settings.
#include "config/config.h"

#include "config/cfgcontent.h"
#include "config/cfgscanner.h"
#include "text/filename.h"
#include "text/standardoutput.h"

#include <QFile>

namespace libconfig {

using namespace Qt::StringLiterals;

Config::Config() = default;

Config::~Config() = default;

void Config::loadFile()
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        tellUnreadable(fileName);
    const CfgContent content(file.isOpen() ? limitedContent(file) : QByteArray());
    stream.place(content.isClosed() ? QFile::encodeName(fileName) : QByteArray(), content.size());
    addFile(content);
}

void Config::tellUnreadable(const QString &name)
{
    text::printLine("Error in the method FileReader::open( " + text::bytesOfName(name)
                    + " ): File Not Found");
}

void Config::addFile(CfgContent file)
{
    if (tree)
        tree->append(file, fileName);
    if (!tree || !files.empty())
        files.push_back(std::move(file));
}

/// The first file with a member has the tree's first element.
QString Config::lookup(QString const &key) const
{
    const KeyPath path(key);
    for (const CfgContent &file : files) {
        if (file.hasMember())
            return file.lookup(path);
    }
    return files.empty() && tree ? tree->lookup(path) : u""_s;
}

std::ifstream &Config::Stream::operator*()
{
    if (!made) {
        made = std::make_unique<std::ifstream>();
        open();
    }
    return *made;
}

void Config::Stream::place(const QByteArray &filePath, std::streamoff offset)
{
    path = filePath;
    start = offset;
    if (made) {
        made->close();
        made->clear();
        open();
    }
}

void Config::Stream::open()
{
    if (path.isEmpty())
        return;
    made->open(path.constData(), std::ios::in | std::ios::binary);
    made->seekg(start);
}

} // namespace libconfig
