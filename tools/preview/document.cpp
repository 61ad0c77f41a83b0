// SPDX-License-Identifier: MIT
#include "tools/preview/document.h"

#include "tools/requests/requestfiles.h"

#include <QFile>
#include <QTemporaryFile>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

/// A file that is removed with the object.
class OwnFile : public QFile
{
public:
    using QFile::QFile;
    ~OwnFile() override { remove(); }
};

/// A copy that can be read twice; null when there is no room for it.
std::unique_ptr<QIODevice> copied(QIODevice &source)
{
    constexpr int PieceBytes = 64 * 1'024;
    auto copy = std::make_unique<QTemporaryFile>();
    bool written = copy->open();
    for (QByteArray piece = source.read(PieceBytes); written && !piece.isEmpty();
         piece = source.read(PieceBytes))
        written = copy->write(piece) == piece.size();
    if (!written || !copy->flush() || !copy->seek(0))
        return nullptr;
    return copy;
}

} // namespace

std::optional<Source> readSource(const tools::Call &call, const QString &name)
{
    constexpr int MostBlank = 4 * 1'024; // bytes before the first character of a request
    Source source{name, tools::openedRequest(call, name), false};
    if (!source.content)
        return std::nullopt;
    if (name == tools::StandardInput || source.content->isSequential())
        source.content = copied(*source.content);
    if (!source.content) {
        tools::tellTrouble(call, name, u"there is no room for a copy of it"_s);
        return std::nullopt;
    }
    source.isRequest = isRequest(source.content->peek(MostBlank));
    source.content->close();
    return source;
}

Printer::Printer(const tools::Call &call, bool traceElements)
    : call(call)
    , traceElements(traceElements)
{
}

std::optional<Document> Printer::print(Source &source)
{
    Document document;
    if (!source.isRequest)
        document.printFile = std::move(source.content);
    else if (!printRequest(source, document))
        return std::nullopt;
    if (document.printFile->size() == 0)
        tools::tellTrouble(call, source.name, u"nothing is printed"_s);
    return document;
}

bool Printer::printRequest(Source &source, Document &document)
{
    const QString name = folder.filePath(QString::number(++printed));
    document.printFile = std::make_unique<OwnFile>(name);
    if (!source.content->open(QIODevice::ReadOnly)) {
        tools::tellTrouble(call, source.name, source.content->errorString());
        return false;
    }
    Rendering rendering = render(*source.content, name, traceElements);
    source.content->close();
    document.trace = std::move(rendering.trace);
    document.isRendered = true;
    document.isWhole = rendering.fault.isEmpty();
    if (!document.isWhole)
        tools::tellTrouble(call, source.name, rendering.fault);
    return QFile::exists(name);
}

} // namespace preview
