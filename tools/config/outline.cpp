// SPDX-License-Identifier: MIT
#include "tools/config/outline.h"

#include "config/cfgscanner.h"
#include "config/config.h"

#include <QXmlStreamReader>

namespace configtool {

using namespace Qt::StringLiterals;
using namespace tools;
using libconfig::CfgScanner;
using libconfig::withoutBlanks;

namespace {

/// Where the reader goes on. It knows the end of a text by the `<` that follows, which is read
/// then.
Place placeOf(const QXmlStreamReader &reader)
{
    return {reader.lineNumber(), reader.columnNumber() + (reader.isCharacters() ? 0 : 1)};
}

/// Reads the XML form: a group per element, a setting per attribute.
Outline readXmlOutline(const QByteArray &content)
{
    constexpr int MaxDepth = libconfig::Config::MaxXmlDepth;
    Outline outline;
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    qsizetype open = 0;
    int depth = 0;
    while (!reader.atEnd()) {
        const Place at = placeOf(reader); // a token begins where the one before it ended
        reader.readNext();
        if (reader.isStartElement()) {
            outline.add({.isGroup = true,
                         .parent = open,
                         .name = reader.qualifiedName().toString(),
                         .at = {at, {}}});
            open = qsizetype(outline.entries.size()) - 1;
            for (const QXmlStreamAttribute &attribute : reader.attributes())
                outline.add({.parent = open,
                             .name = attribute.qualifiedName().toString(),
                             .value = attribute.value().toString(),
                             .at = {at, {}},
                             .valueAt = {at, {}}});
            if (++depth > MaxDepth)
                reader.raiseError(Finding::tr("groups nest more than %1 deep").arg(MaxDepth));
        } else if (reader.isEndElement()) {
            open = outline.entries[size_t(open)].parent;
            --depth;
        } else if ((reader.isCharacters() && !reader.isWhitespace()) || reader.isComment()
                   || reader.isProcessingInstruction()) {
            const QStringView text = reader.isProcessingInstruction()
                                         ? reader.processingInstructionTarget()
                                         : reader.text();
            outline.losses.push_back(
                {Severity::Warning, "lost-text"_L1,
                 worded(Finding::tr("text that is no setting: %1"), text.trimmed().toString()),
                 Range{at, {}}, open});
        }
    }
    if (reader.hasError() && !content.isEmpty()) {
        const QString cause = reader.error() == QXmlStreamReader::CustomError
                                  ? Finding::tr("nothing of the file is read: %1")
                                  : Finding::tr("not well-formed, nothing of the file is read: %1");
        outline = {};
        outline.faults = {{Severity::Error, "xml"_L1, cause.arg(reader.errorString()),
                           Range{placeOf(reader), {}}}};
    }
    outline.keepsEmptyGroups = true;
    return outline;
}

constexpr std::string_view IdleText = " \t\n\v\f\r\xA0;"; // white space, and semicolons too many

/// Whether nothing is lost with the text.
bool isIdle(std::string_view text) { return text.find_first_not_of(IdleText) == text.npos; }

class CfgReader
{
    Q_DECLARE_TR_FUNCTIONS(Finding)

public:
    using enum Severity;

    explicit CfgReader(const QByteArray &content);
    Outline read();

private:
    Entry &addEntry(bool isGroup);
    void beginGroup();
    void addSetting();
    bool endGroup();
    void endFile();

    bool checkName(bool isGroup);
    void checkValueEnd(const QString &key, std::string_view value);

    qint64 offsetOf(std::string_view text) const { return text.data() - bytes.data(); }
    Place placeAt(qint64 offset) const;
    Range rangeOf(std::string_view text) const
    {
        return {placeAt(offsetOf(text)), placeAt(offsetOf(text) + qint64(text.size()))};
    }
    /// The line in which the statement ends.
    qint64 lineOfEnd() const { return placeAt(scanner.end() - 1).line; }
    /// The structural character.
    std::string_view mark() const { return bytes.substr(size_t(scanner.mark()), 1); }
    /// The name of the statement; right before its structural character where it has none.
    std::string_view nameText() const { return withoutBlanks(scanner.rawName()); }
    /// Tells a fault, in words with their arguments.
    template <typename... Arguments>
    void tell(Severity severity, QLatin1StringView code, std::string_view place,
              const QString &words, const Arguments &...arguments)
    {
        outline.faults.push_back({severity, code, worded(words, arguments...), rangeOf(place)});
    }
    /// The same for an error by which text of the file is lost, in the store and in a file written
    /// from it; quotes are lost by many on purpose.
    template <typename... Arguments>
    void tellLoss(QLatin1StringView code, std::string_view place, const QString &words,
                  const Arguments &...arguments)
    {
        tell(code == "lost-quotes"_L1 ? Severity::Warning : Severity::Error, code, place, words,
             arguments...);
        outline.losses.push_back(outline.faults.back());
    }

    const std::string_view bytes;
    CfgScanner scanner;
    std::vector<qint64> lines{0}; // where each begins
    Outline outline;
    std::vector<qsizetype> open{0}; // the groups whose bodies are being read
};

CfgReader::CfgReader(const QByteArray &content)
    : bytes(content.constData(), size_t(content.size()))
    , scanner(bytes)
{
    for (size_t at = bytes.find('\n'); at != bytes.npos; at = bytes.find('\n', at + 1))
        lines.push_back(qint64(at) + 1);
}

Outline CfgReader::read()
{
    if (bytes.starts_with("\xEF\xBB\xBF"))
        tell(Error, "byte-order-mark"_L1, bytes.substr(0, 3),
             tr("the file begins with a byte order mark, which becomes part of its first name"));
    using enum CfgScanner::Statement;
    for (auto statement = scanner.next(); statement != EndOfFile; statement = scanner.next()) {
        if (statement == GroupBegin)
            beginGroup();
        else if (statement == Setting)
            addSetting();
        else if (!endGroup())
            return std::move(outline);
    }
    endFile();
    return std::move(outline);
}

/// Adds what the statement names.
Entry &CfgReader::addEntry(bool isGroup)
{
    return outline.add({.isGroup = isGroup,
                        .parent = open.back(),
                        .name = scanner.name(),
                        .at = rangeOf(nameText()),
                        .misread = !checkName(isGroup),
                        .text = {offsetOf(nameText()), scanner.end()}});
}

void CfgReader::beginGroup()
{
    const auto index = qsizetype(outline.entries.size());
    Entry &group = addEntry(true);
    group.body = {scanner.end(), scanner.end()};
    open.push_back(index);
    const std::string_view skipped = withoutBlanks(scanner.rawValue());
    if (!scanner.complete())
        tellLoss("missing-brace"_L1, mark(),
                 tr("no `{` follows the `:` of the group %1: the rest of the file is skipped"),
                 group.name);
    else if (skipped.find_first_of(":=}") != skipped.npos)
        tellLoss("missing-brace"_L1, mark(),
                 tr("no `{` of its own follows the `:` of the group %1: it takes that of line %2, "
                    "and all between is lost: %3"),
                 group.name, lineOfEnd(), skipped);
    else if (!skipped.empty())
        tellLoss("text-lost"_L1, scanner.rawValue(), tr("lost between `:` and `{`: %1"), skipped);
}

void CfgReader::addSetting()
{
    const std::string_view value = withoutBlanks(scanner.rawValue());
    Entry &setting = addEntry(false);
    setting.value = scanner.value();
    setting.valueAt = rangeOf(value);
    setting.body = {offsetOf(value), offsetOf(value) + qint64(value.size())};
    if (value.find('\0') != value.npos)
        tellLoss("stray-text"_L1, value, tr("a NUL byte ends the value of %1"), setting.name);
    const bool isEnclosed = value.size() >= 2 && value.starts_with('"') && value.ends_with('"');
    if (!scanner.complete() || value.find('\n') != value.npos)
        checkValueEnd(setting.name, value);
    else if (std::ranges::count(value, '"') != (isEnclosed ? 2 : 0))
        tellLoss("lost-quotes"_L1, value, tr("double quotes inside a value are lost: %1 is %2"),
                 setting.name, setting.value);
}

/// False at the `}` that ends the reading of the file.
bool CfgReader::endGroup()
{
    if (!isIdle(scanner.rawName()))
        tellLoss("text-lost"_L1, nameText(), tr("no setting, and lost: %1"), nameText());
    if (open.size() == 1) {
        const std::string_view rest = bytes.substr(size_t(scanner.mark()) + 1);
        if (isIdle(rest))
            tellLoss("stray-brace"_L1, mark(), tr("this `}` closes no group"));
        else
            tellLoss("stray-brace"_L1, mark(),
                     tr("this `}` closes no group: reading ends here, and the rest of the file is "
                        "lost: %1"),
                     rest);
        return false;
    }
    Entry &group = outline.entries[size_t(open.back())];
    if (!isIdle(scanner.rawValue()))
        tellLoss("missing-semicolon"_L1, mark(),
                 tr("no `;` follows the `}` of the group %1: all up to the next one is lost: %2"),
                 group.name, scanner.rawValue());
    else if (!scanner.complete())
        tell(Warning, "missing-semicolon"_L1, mark(), tr("no `;` follows the `}` of the group %1"),
             group.name);
    group.body.end = scanner.mark();
    group.text.end = scanner.end();
    open.pop_back();
    return true;
}

void CfgReader::endFile()
{
    if (!isIdle(scanner.rawName()))
        tellLoss("text-lost"_L1, nameText(), tr("the end of the file is lost: %1"), nameText());
    for (size_t i = 1; i < open.size(); ++i) {
        const Entry &group = outline.entries[size_t(open[i])];
        outline.faults.push_back({Error, "unclosed-group"_L1,
                                  worded(tr("the group %1 is not closed"), group.name), group.at});
    }
}

/// Tells when other text became part of a name; false then.
bool CfgReader::checkName(bool isGroup)
{
    const std::string_view name = nameText();
    const size_t lineEnd = name.rfind('\n');
    constexpr std::array<std::string_view, 5> marks = {"#", "//", "/*", "--", "<!--"};
    const auto begins = [name](std::string_view mark) { return name.starts_with(mark); };
    const bool isComment = std::ranges::any_of(marks, begins);
    const auto tellStray = [&](const QString &words, const auto &...arguments) {
        tellLoss("stray-text"_L1, name, words, arguments...);
        return false;
    };
    const auto what = [isGroup] { return Plain{isGroup ? tr("group") : tr("key")}; };
    if (scanner.rawName().find('\0') != name.npos)
        return tellStray(tr("a NUL byte ends the name of the %1 %2"), what(), scanner.name());
    if (name.starts_with(';'))
        return tellStray(tr("a `;` too many became part of the %1 %2"), what(),
                         isIdle(name) ? name : name.substr(name.find_first_not_of(IdleText)));
    if (lineEnd != name.npos)
        return tellStray(tr("%1 became part of the %2 %3: %4"), name.substr(0, lineEnd), what(),
                         name.substr(lineEnd),
                         Plain{isComment ? tr("there are no comments")
                                         : tr("it is neither `key = value;` nor `group : {`")});
    if (isComment)
        return tellStray(tr("%1 is read as a %2: there are no comments"), name, what());
    if (name.find('{') != name.npos)
        return tellStray(tr("a `{` became part of the %1 %2: the `:` before it is missing"), what(),
                         name);
    return true;
}

/// A value that runs over its line, or to the end of the file: the `;` is missing.
void CfgReader::checkValueEnd(const QString &key, std::string_view value)
{
    if (value.empty())
        value = scanner.rawValue().substr(0, 0);
    const std::string_view line = withoutBlanks(value.substr(0, value.find('\n')));
    const std::string_view rest = value.substr(line.size());
    if (!scanner.complete())
        tell(Error, "missing-semicolon"_L1, rest,
             tr("no `;` ends the value of %1: it runs to the end of the file"), key);
    else if (std::ranges::count(line, '"') % 2 == 1)
        tell(Warning, "missing-semicolon"_L1, rest, tr("the quoted value of %1 goes on to line %2"),
             key, lineOfEnd());
    else
        tell(Error, "missing-semicolon"_L1, rest,
             tr("no `;` ends the value of %1 on its line: it runs on to line %2 and takes in %3"),
             key, lineOfEnd(), rest);
}

Place CfgReader::placeAt(qint64 offset) const
{
    const auto next = std::ranges::upper_bound(lines, offset);
    return {next - lines.begin(), offset - *std::prev(next) + 1};
}

} // namespace

QString shown(std::string_view text)
{
    return excerpt(QString::fromLatin1(QByteArrayView(withoutBlanks(text))));
}

Entry &Outline::add(Entry entry)
{
    entries[size_t(entry.parent)].hasMember = true;
    return entries.emplace_back(std::move(entry));
}

qsizetype Outline::topGroup() const
{
    const auto found = std::ranges::find_if(entries, [this](const Entry &entry) {
        return entry.isGroup && entry.parent == 0 && keeps(entry);
    });
    return found == entries.end() ? -1 : found - entries.begin();
}

QString Outline::pathOf(qsizetype entry) const
{
    constexpr int Most = 6; // names
    QString path;
    for (int names = 0; entry > 0; entry = entries[size_t(entry)].parent, ++names) {
        const QString point(path.isEmpty() ? ""_L1 : "."_L1);
        if (names == Most)
            return u"…"_s + point + path;
        path.prepend(entries[size_t(entry)].name + point);
    }
    return path;
}

Outline readOutline(const QByteArray &content, const QString &format)
{
    return format == "xml"_L1 ? readXmlOutline(content) : CfgReader(content).read();
}

} // namespace configtool
