// SPDX-License-Identifier: MIT
// The lower floor: what a program needs that only asks a "cfg" file for its settings.
#include "config/config.h"

#include "config/cfgscanner.h"
#include "text/system.h"

#include <QFile>

#include <limits>

namespace libconfig {

using namespace Qt::StringLiterals;

namespace {

void tellUnreadable(const QString &name)
{
    text::printLine("Error in the method FileReader::open( " + text::bytesOfName(name)
                    + " ): File Not Found");
}

} // namespace

Config::Config() = default;

Config::~Config() = default;

bool Config::openFile(QString const &name)
{
    stream = std::make_unique<std::ifstream>(QFile::encodeName(name).constData(),
                                             std::ios::in | std::ios::binary);
    stream->peek(); // a folder opens, but gives no character
    if (stream->is_open() && !stream->bad()) {
        stream->clear();
        return true;
    }
    closeFile();
    tellUnreadable(name);
    return false;
}

bool Config::jump(char c)
{
    // Of a byte above 0x7f the plain character would be a negative number, which no stream gives.
    return stream
           && stream
                  ->ignore(std::numeric_limits<std::streamsize>::max(),
                           std::ifstream::traits_type::to_int_type(c))
                  .good();
}

void Config::loadFile()
{
    closeFile();
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        tellUnreadable(fileName);
    CfgContent content(file.isOpen() ? limitedContent(file) : QByteArray());
    if (content.isClosed() && !file.isSequential() && openFile()) // a pipe would be waited for
        stream->seekg(content.size());
    addFile(std::move(content));
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

} // namespace libconfig
