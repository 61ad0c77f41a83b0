// SPDX-License-Identifier: MIT
#include "tools/config/outline.h"

#include "config/cfgscanner.h"
#include "tools/terminal.h"

#include <algorithm>
#include <array>

namespace configtool {

using namespace Qt::StringLiterals;
using libconfig::CfgScanner;
using tools::excerpt;

namespace {

constexpr std::string_view WhiteSpace = " \t\n\v\f\r\xA0"; // what the reader trims

std::string_view trimmed(std::string_view text)
{
    const size_t first = text.find_first_not_of(WhiteSpace);
    if (first == text.npos)
        return {};
    return text.substr(first, text.find_last_not_of(WhiteSpace) + 1 - first);
}

QString shown(std::string_view text)
{
    return excerpt(QString::fromLatin1(QByteArrayView(trimmed(text))));
}

/// Whether nothing is lost with the text: it is blank, or semicolons too many.
bool isIdle(std::string_view text)
{
    return text.find_first_not_of(" \t\n\v\f\r\xA0;") == text.npos;
}

bool beginsLikeComment(std::string_view text)
{
    constexpr std::array<std::string_view, 5> marks = {"#", "//", "/*", "--", "<!--"};
    return std::ranges::any_of(marks, [text](auto mark) { return text.starts_with(mark); });
}

class Reader
{
public:
    using enum Severity;

    explicit Reader(const QByteArray &content);
    Outline read();

private:
    void beginGroup();
    void addSetting();
    bool endGroup();
    void endFile();

    bool checkName(const QString &what);
    void checkValue(const QString &key, qint64 begin);
    void checkValueEnd(const QString &key, std::string_view value, qint64 begin);
    void checkQuotes(const QString &key, std::string_view value, qint64 begin);

    Place placeAt(qint64 offset) const;
    std::string_view textBetween(qint64 begin, qint64 end) const;
    /// What stands between the structural character and the one that ends the statement.
    std::string_view skippedText() const
    {
        return textBetween(scanner.mark() + 1, scanner.end() - (scanner.complete() ? 1 : 0));
    }
    qint64 nameBegin() const;
    Entry &entry(qsizetype index) { return outline.entries[size_t(index)]; }
    void tell(Severity severity, QLatin1StringView code, qint64 offset, const QString &text);
    void tellLoss(QLatin1StringView code, qint64 offset, const QString &text,
                  Severity severity = Error);

    const std::string_view bytes;
    CfgScanner scanner;
    std::vector<qint64> lines; // where each begins
    Outline outline;
    std::vector<qsizetype> open; // the groups whose bodies are being read
};

Reader::Reader(const QByteArray &content)
    : bytes(content.constData(), size_t(content.size()))
    , scanner(bytes)
    , lines{0}
    , open{0}
{
    for (size_t at = bytes.find('\n'); at != bytes.npos; at = bytes.find('\n', at + 1))
        lines.push_back(qint64(at) + 1);
    outline.add(Entry::Kind::Group, -1);
}

Outline Reader::read()
{
    if (bytes.starts_with("\xEF\xBB\xBF"))
        tell(Error, "byte-order-mark"_L1, 0,
             u"the file begins with a byte order mark, which becomes part of its first name"_s);
    for (;;) {
        switch (scanner.next()) {
        case CfgScanner::Statement::GroupBegin:
            beginGroup();
            break;
        case CfgScanner::Statement::Setting:
            addSetting();
            break;
        case CfgScanner::Statement::GroupEnd:
            if (!endGroup())
                return std::move(outline);
            break;
        case CfgScanner::Statement::EndOfFile:
            endFile();
            return std::move(outline);
        }
    }
}

void Reader::beginGroup()
{
    const QString name = scanner.name();
    const bool misread = !checkName(u"group"_s);
    const auto index = qsizetype(outline.entries.size());
    Entry &group = outline.add(Entry::Kind::Group, open.back(), name, placeAt(nameBegin()));
    group.misread = misread;
    group.text = {nameBegin(), scanner.end()};
    group.body = {scanner.end(), scanner.end()};
    open.push_back(index);

    const std::string_view skipped = trimmed(skippedText());
    if (!scanner.complete())
        tellLoss("missing-brace"_L1, scanner.mark(),
                 "no `{` follows the `:` of the group "_L1 + excerpt(name)
                     + ": the rest of the file is skipped"_L1);
    else if (skipped.find_first_of(":=}") != skipped.npos)
        tellLoss("missing-brace"_L1, scanner.mark(),
                 "no `{` of its own follows the `:` of the group "_L1 + excerpt(name)
                     + ": it takes that of line "_L1
                     + QString::number(placeAt(scanner.end() - 1).line)
                     + ", and all between is lost: "_L1 + shown(skipped));
    else if (!skipped.empty())
        tellLoss("text-lost"_L1, scanner.mark() + 1,
                 "lost between `:` and `{`: "_L1 + shown(skipped));
}

void Reader::addSetting()
{
    const QString key = scanner.name();
    const bool misread = !checkName(u"key"_s);
    const std::string_view value = trimmed(scanner.rawValue());
    const size_t blanks =
        std::min(scanner.rawValue().find_first_not_of(WhiteSpace), scanner.rawValue().size());
    const qint64 begin = scanner.mark() + 1 + qint64(blanks);
    Entry &setting = outline.add(Entry::Kind::Setting, open.back(), key, placeAt(nameBegin()));
    setting.value = scanner.value();
    setting.valueAt = placeAt(begin);
    setting.misread = misread;
    setting.text = {nameBegin(), scanner.end()};
    setting.body = {begin, begin + qint64(value.size())};
    checkValue(key, value.empty() ? scanner.mark() + 1 : begin);
}

/// False at the `}` that ends the reading of the file.
bool Reader::endGroup()
{
    if (!isIdle(scanner.rawName()))
        tellLoss("text-lost"_L1, nameBegin(),
                 "no setting, and lost: "_L1 + shown(scanner.rawName()));
    const std::string_view skipped = skippedText();
    const QString name = excerpt(entry(open.back()).name);
    if (open.size() == 1) {
        const std::string_view rest = textBetween(scanner.mark() + 1, qint64(bytes.size()));
        tellLoss(
            "stray-brace"_L1, scanner.mark(),
            isIdle(rest)
                ? u"this `}` closes no group"_s
                : "this `}` closes no group: reading ends here, and the rest of the file is lost: "_L1
                      + shown(rest));
        return false;
    }
    if (!isIdle(skipped))
        tellLoss("missing-semicolon"_L1, scanner.mark(),
                 "no `;` follows the `}` of the group "_L1 + name
                     + ": all up to the next one is lost: "_L1 + shown(skipped));
    else if (!scanner.complete())
        tell(Warning, "missing-semicolon"_L1, scanner.mark(),
             "no `;` follows the `}` of the group "_L1 + name);
    entry(open.back()).body.end = scanner.mark();
    entry(open.back()).text.end = scanner.end();
    open.pop_back();
    return true;
}

void Reader::endFile()
{
    if (!isIdle(scanner.rawName()))
        tellLoss("text-lost"_L1, nameBegin(),
                 "the end of the file is lost: "_L1 + shown(scanner.rawName()));
    for (size_t i = 1; i < open.size(); ++i) {
        const Entry &group = entry(open[i]);
        outline.faults.push_back({Error, "unclosed-group"_L1,
                                  "the group "_L1 + excerpt(group.name) + " is not closed"_L1,
                                  group.at});
    }
}

/// Tells when other text became part of a name; false then.
bool Reader::checkName(const QString &what)
{
    const std::string_view raw = scanner.rawName();
    const std::string_view name = trimmed(raw);
    const size_t lineEnd = name.rfind('\n');
    const size_t semicolons = name.find_first_not_of(" \t\n\v\f\r\xA0;");
    QString fault;
    if (raw.find('\0') != raw.npos)
        fault = "a NUL byte ends the name of the "_L1 + what + u' ' + excerpt(scanner.name());
    else if (name.starts_with(';'))
        fault = "a `;` too many became part of the "_L1 + what + u' '
                + shown(semicolons == name.npos ? name : name.substr(semicolons));
    else if (lineEnd != name.npos)
        fault = shown(name.substr(0, lineEnd)) + " became part of the "_L1 + what + u' '
                + shown(name.substr(lineEnd))
                + (beginsLikeComment(name) ? ": there are no comments"_L1
                                           : ": it is neither `key = value;` nor `group : {`"_L1);
    else if (beginsLikeComment(name))
        fault = shown(name) + " is read as a "_L1 + what + ": there are no comments"_L1;
    else if (name.find('{') != name.npos)
        fault = "a `{` became part of the "_L1 + what + u' ' + shown(name)
                + ": the `:` before it is missing"_L1;
    if (fault.isEmpty())
        return true;
    tellLoss("stray-text"_L1, nameBegin(), fault);
    return false;
}

void Reader::checkValue(const QString &key, qint64 begin)
{
    const std::string_view value = trimmed(scanner.rawValue());
    if (value.find('\0') != value.npos)
        tellLoss("stray-text"_L1, begin, "a NUL byte ends the value of "_L1 + excerpt(key));
    if (!scanner.complete() || value.find('\n') != value.npos)
        checkValueEnd(key, value, begin);
    else
        checkQuotes(key, value, begin);
}

/// A value that runs over its line, or to the end of the file: the `;` is missing.
void Reader::checkValueEnd(const QString &key, std::string_view value, qint64 begin)
{
    const std::string_view line = trimmed(value.substr(0, value.find('\n')));
    const bool insideQuotes = std::ranges::count(line, '"') % 2 == 1;
    const qint64 lineEnd = begin + qint64(line.size());
    if (!scanner.complete())
        tell(Error, "missing-semicolon"_L1, lineEnd,
             "no `;` ends the value of "_L1 + excerpt(key) + ": it runs to the end of the file"_L1);
    else if (insideQuotes)
        tell(Warning, "missing-semicolon"_L1, lineEnd,
             "the quoted value of "_L1 + excerpt(key) + " goes on to line "_L1
                 + QString::number(placeAt(scanner.end() - 1).line));
    else
        tell(Error, "missing-semicolon"_L1, lineEnd,
             "no `;` ends the value of "_L1 + excerpt(key) + " on its line: it runs on to line "_L1
                 + QString::number(placeAt(scanner.end() - 1).line) + " and takes in "_L1
                 + shown(value.substr(line.size())));
}

void Reader::checkQuotes(const QString &key, std::string_view value, qint64 begin)
{
    const auto quotes = std::ranges::count(value, '"');
    const bool enclosed = value.size() >= 2 && value.starts_with('"') && value.ends_with('"');
    if (quotes == (enclosed ? 2 : 0))
        return;
    tellLoss("lost-quotes"_L1, begin,
             "double quotes inside a value are lost: "_L1 + excerpt(key) + " is "_L1
                 + excerpt(scanner.value()),
             Warning);
}

Place Reader::placeAt(qint64 offset) const
{
    const auto next = std::ranges::upper_bound(lines, offset);
    return {next - lines.begin(), offset - *std::prev(next) + 1};
}

std::string_view Reader::textBetween(qint64 begin, qint64 end) const
{
    return begin < end ? bytes.substr(size_t(begin), size_t(end - begin)) : std::string_view();
}

/// Where the name of the statement begins; its structural character where it has none.
qint64 Reader::nameBegin() const
{
    const size_t blanks = scanner.rawName().find_first_not_of(WhiteSpace);
    return blanks == std::string_view::npos ? scanner.mark() : scanner.begin() + qint64(blanks);
}

void Reader::tell(Severity severity, QLatin1StringView code, qint64 offset, const QString &text)
{
    outline.faults.push_back({severity, code, text, placeAt(offset)});
}

/// A fault by which text of the file is lost, in the store and in a file written from it.
void Reader::tellLoss(QLatin1StringView code, qint64 offset, const QString &text, Severity severity)
{
    tell(severity, code, offset, text);
    outline.losses.push_back(outline.faults.back());
}

} // namespace

Outline readCfgOutline(const QByteArray &content) { return Reader(content).read(); }

} // namespace configtool
