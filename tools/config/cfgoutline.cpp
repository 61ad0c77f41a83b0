// SPDX-License-Identifier: MIT
#include "tools/config/outline.h"

#include "config/cfgscanner.h"
#include "tools/terminal.h"

#include <algorithm>
#include <array>

namespace configtool {

using namespace Qt::StringLiterals;
using libconfig::CfgScanner;
using libconfig::withoutBlanks;
using tools::excerpt;

namespace {

constexpr std::string_view IdleText = " \t\n\v\f\r\xA0;"; // with semicolons too many

QString shown(std::string_view text)
{
    return excerpt(QString::fromLatin1(QByteArrayView(withoutBlanks(text))));
}

/// Whether nothing is lost with the text.
bool isIdle(std::string_view text) { return text.find_first_not_of(IdleText) == text.npos; }

bool beginsLikeComment(std::string_view text)
{
    constexpr std::array<std::string_view, 5> marks = {"#", "//", "/*", "--", "<!--"};
    return std::ranges::any_of(marks, [text](auto mark) { return text.starts_with(mark); });
}

class Reader
{
    Q_DECLARE_TR_FUNCTIONS(Finding)

public:
    using enum Severity;

    explicit Reader(const QByteArray &content);
    Outline read();

private:
    Entry &addEntry(Entry::Kind kind);
    void beginGroup();
    void addSetting();
    bool endGroup();
    void endFile();

    bool checkName(bool isGroup);
    void checkValueEnd(const QString &key, std::string_view value);
    void checkQuotes(const QString &key, std::string_view value);

    qint64 offsetOf(std::string_view text) const { return text.data() - bytes.data(); }
    Range rangeOf(std::string_view text) const;
    QString lineOfEnd() const;
    /// The structural character.
    std::string_view mark() const { return bytes.substr(size_t(scanner.mark()), 1); }
    /// The name of the statement; right before its structural character where it has none.
    std::string_view nameText() const { return withoutBlanks(scanner.rawName()); }
    void tell(Severity severity, QLatin1StringView code, std::string_view place,
              const QString &text);
    void tellLoss(QLatin1StringView code, std::string_view place, const QString &text,
                  Severity severity = Error);

    const std::string_view bytes;
    CfgScanner scanner;
    std::vector<qint64> lines{0}; // where each begins
    Outline outline;
    std::vector<qsizetype> open{0}; // the groups whose bodies are being read
};

Reader::Reader(const QByteArray &content)
    : bytes(content.constData(), size_t(content.size()))
    , scanner(bytes)
{
    for (size_t at = bytes.find('\n'); at != bytes.npos; at = bytes.find('\n', at + 1))
        lines.push_back(qint64(at) + 1);
    outline.add(Entry::Kind::Group, -1);
}

Outline Reader::read()
{
    if (bytes.starts_with("\xEF\xBB\xBF"))
        tell(Error, "byte-order-mark"_L1, bytes.substr(0, 3),
             tr("the file begins with a byte order mark, which becomes part of its first name"));
    for (bool goesOn = true; goesOn;) {
        switch (scanner.next()) {
        case CfgScanner::Statement::GroupBegin:
            beginGroup();
            break;
        case CfgScanner::Statement::Setting:
            addSetting();
            break;
        case CfgScanner::Statement::GroupEnd:
            goesOn = endGroup();
            break;
        case CfgScanner::Statement::EndOfFile:
            endFile();
            goesOn = false;
            break;
        }
    }
    return std::move(outline);
}

/// Adds what the statement names.
Entry &Reader::addEntry(Entry::Kind kind)
{
    const bool misread = !checkName(kind == Entry::Kind::Group);
    Entry &entry = outline.add(kind, open.back(), scanner.name(), rangeOf(nameText()));
    entry.misread = misread;
    entry.text = {offsetOf(nameText()), scanner.end()};
    return entry;
}

void Reader::beginGroup()
{
    const auto index = qsizetype(outline.entries.size());
    addEntry(Entry::Kind::Group).body = {scanner.end(), scanner.end()};
    open.push_back(index);

    const auto name = [this] { return excerpt(scanner.name()); };
    const std::string_view skipped = withoutBlanks(scanner.rawValue());
    if (!scanner.complete())
        tellLoss("missing-brace"_L1, mark(),
                 tr("no `{` follows the `:` of the group %1: the rest of the file is skipped")
                     .arg(name()));
    else if (skipped.find_first_of(":=}") != skipped.npos)
        tellLoss("missing-brace"_L1, mark(),
                 tr("no `{` of its own follows the `:` of the group %1: it takes that of line %2, "
                    "and all between is lost: %3")
                     .arg(name(), lineOfEnd(), shown(skipped)));
    else if (!skipped.empty())
        tellLoss("text-lost"_L1, scanner.rawValue(),
                 tr("lost between `:` and `{`: %1").arg(shown(skipped)));
}

void Reader::addSetting()
{
    const std::string_view value = withoutBlanks(scanner.rawValue());
    const qint64 begin = offsetOf(value);
    Entry &setting = addEntry(Entry::Kind::Setting);
    setting.value = scanner.value();
    setting.valueAt = rangeOf(value);
    setting.body = {begin, begin + qint64(value.size())};
    if (value.find('\0') != value.npos)
        tellLoss("stray-text"_L1, value,
                 tr("a NUL byte ends the value of %1").arg(excerpt(setting.name)));
    if (!scanner.complete() || value.find('\n') != value.npos)
        checkValueEnd(excerpt(setting.name), value);
    else
        checkQuotes(setting.name, value);
}

/// False at the `}` that ends the reading of the file.
bool Reader::endGroup()
{
    if (!isIdle(scanner.rawName()))
        tellLoss("text-lost"_L1, nameText(), tr("no setting, and lost: %1").arg(shown(nameText())));
    if (open.size() == 1) {
        const std::string_view rest = bytes.substr(size_t(scanner.mark()) + 1);
        tellLoss("stray-brace"_L1, mark(),
                 isIdle(rest) ? tr("this `}` closes no group")
                              : tr("this `}` closes no group: reading ends here, and the rest of "
                                   "the file is lost: %1")
                                    .arg(shown(rest)));
        return false;
    }
    Entry &group = outline.entries[size_t(open.back())];
    if (!isIdle(scanner.rawValue()))
        tellLoss("missing-semicolon"_L1, mark(),
                 tr("no `;` follows the `}` of the group %1: all up to the next one is lost: %2")
                     .arg(excerpt(group.name), shown(scanner.rawValue())));
    else if (!scanner.complete())
        tell(Warning, "missing-semicolon"_L1, mark(),
             tr("no `;` follows the `}` of the group %1").arg(excerpt(group.name)));
    group.body.end = scanner.mark();
    group.text.end = scanner.end();
    open.pop_back();
    return true;
}

void Reader::endFile()
{
    if (!isIdle(scanner.rawName()))
        tellLoss("text-lost"_L1, nameText(),
                 tr("the end of the file is lost: %1").arg(shown(nameText())));
    for (size_t i = 1; i < open.size(); ++i) {
        const Entry &group = outline.entries[size_t(open[i])];
        outline.faults.push_back({Error, "unclosed-group"_L1,
                                  tr("the group %1 is not closed").arg(excerpt(group.name)),
                                  group.at});
    }
}

/// Tells when other text became part of a name; false then.
bool Reader::checkName(bool isGroup)
{
    const auto what = [isGroup] { return isGroup ? tr("group") : tr("key"); };
    const std::string_view name = nameText();
    const size_t lineEnd = name.rfind('\n');
    QString fault;
    if (scanner.rawName().find('\0') != name.npos)
        fault = tr("a NUL byte ends the name of the %1 %2").arg(what(), excerpt(scanner.name()));
    else if (name.starts_with(';'))
        fault =
            tr("a `;` too many became part of the %1 %2")
                .arg(what(),
                     shown(isIdle(name) ? name : name.substr(name.find_first_not_of(IdleText))));
    else if (lineEnd != name.npos)
        fault =
            tr("%1 became part of the %2 %3: %4")
                .arg(shown(name.substr(0, lineEnd)), what(), shown(name.substr(lineEnd)),
                     beginsLikeComment(name) ? tr("there are no comments")
                                             : tr("it is neither `key = value;` nor `group : {`"));
    else if (beginsLikeComment(name))
        fault = tr("%1 is read as a %2: there are no comments").arg(shown(name), what());
    else if (name.find('{') != name.npos)
        fault = tr("a `{` became part of the %1 %2: the `:` before it is missing")
                    .arg(what(), shown(name));
    if (!fault.isEmpty())
        tellLoss("stray-text"_L1, name, fault);
    return fault.isEmpty();
}

/// A value that runs over its line, or to the end of the file: the `;` is missing.
void Reader::checkValueEnd(const QString &key, std::string_view value)
{
    if (value.empty())
        value = scanner.rawValue().substr(0, 0);
    const std::string_view line = withoutBlanks(value.substr(0, value.find('\n')));
    const std::string_view rest = value.substr(line.size());
    const bool insideQuotes = std::ranges::count(line, '"') % 2 == 1;
    QString fault;
    if (!scanner.complete())
        fault = tr("no `;` ends the value of %1: it runs to the end of the file").arg(key);
    else if (insideQuotes)
        fault = tr("the quoted value of %1 goes on to line %2").arg(key, lineOfEnd());
    else
        fault = tr("no `;` ends the value of %1 on its line: it runs on to line %2 and takes in %3")
                    .arg(key, lineOfEnd(), shown(rest));
    tell(scanner.complete() && insideQuotes ? Warning : Error, "missing-semicolon"_L1, rest, fault);
}

void Reader::checkQuotes(const QString &key, std::string_view value)
{
    const bool enclosed = value.size() >= 2 && value.starts_with('"') && value.ends_with('"');
    if (std::ranges::count(value, '"') != (enclosed ? 2 : 0))
        tellLoss("lost-quotes"_L1, value,
                 tr("double quotes inside a value are lost: %1 is %2")
                     .arg(excerpt(key), excerpt(scanner.value())),
                 Warning);
}

Range Reader::rangeOf(std::string_view text) const
{
    const auto placeAt = [this](qint64 offset) {
        const auto next = std::ranges::upper_bound(lines, offset);
        return Place{next - lines.begin(), offset - *std::prev(next) + 1};
    };
    return {placeAt(offsetOf(text)), placeAt(offsetOf(text) + qint64(text.size()))};
}

/// The line in which the statement ends.
QString Reader::lineOfEnd() const
{
    return QString::number(rangeOf(bytes.substr(size_t(scanner.end()) - 1, 0)).begin.line);
}

void Reader::tell(Severity severity, QLatin1StringView code, std::string_view place,
                  const QString &text)
{
    outline.faults.push_back({severity, code, text, rangeOf(place)});
}

/// A fault by which text of the file is lost, in the store and in a file written from it.
void Reader::tellLoss(QLatin1StringView code, std::string_view place, const QString &text,
                      Severity severity)
{
    tell(severity, code, place, text);
    outline.losses.push_back(outline.faults.back());
}

} // namespace

Outline readCfgOutline(const QByteArray &content) { return Reader(content).read(); }

} // namespace configtool
