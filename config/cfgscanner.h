// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringTokenizer>
#include <QStringView>
#include <QVarLengthArray>

#include <span>
#include <string_view>
#include <vector>

class QIODevice;

namespace libconfig {

inline QLatin1StringView latin1(std::string_view bytes)
{
    return {bytes.data(), qsizetype(bytes.size())};
}

/// The text without the white space at its ends; of white space alone, its end.
std::string_view withoutBlanks(std::string_view text);
/// A name or a value as it is kept: likewise, up to the first NUL.
inline std::string_view trimmed(std::string_view text)
{
    return withoutBlanks(text.substr(0, text.find('\0')));
}

/// The grammar of the "cfg" form: takes a text apart, statement by statement. The store's reader
/// stands on it, and so does whoever tells a person where a file goes wrong.
///
/// A byte is a character of ISO 8859-1. There are no errors: whatever the bytes, each of them
/// belongs to one statement.
class CfgScanner
{
public:
    /// What is behind these bytes is not read: a file that never ends, such as a link to a device,
    /// would take all memory.
    static constexpr qint64 MaxBytes = qint64(64) * 1'024 * 1'024;

    enum class Statement {
        GroupBegin, ///< `name : {`
        Setting,    ///< `name = value;`
        GroupEnd,   ///< `};`
        EndOfFile,  ///< what no structural character follows
    };

    /// The text is borrowed. What is behind its first MaxBytes is not read.
    explicit CfgScanner(std::string_view text)
        : text(text.substr(0, size_t(MaxBytes)))
    {
    }

    /// Goes on to the end of the next statement.
    Statement next();

    // Of the statement that next() answered last.

    /// The bytes before the structural character, and those between it and what ends the statement.
    std::string_view rawName() const { return nameText; }
    std::string_view rawValue() const { return valueText; }
    /// The name of a group or a setting, and the value of a setting, as they are kept.
    QString name() const { return latin1(trimmed(nameText)); }
    QString value() const { return withoutQuotes(trimmed(valueText)); }
    /// What is kept of the bytes of a value: all but the double quotes, wherever they stand.
    static QString withoutQuotes(std::string_view value)
    {
        return QString(latin1(value)).remove(u'"');
    }

    // Where it stands, in bytes from the text's first.

    qint64 begin() const { return qint64(beginning); } ///< of its first byte
    qint64 mark() const { return qint64(marked); }     ///< of `:`, `=` or `}`; of the text's end
    qint64 end() const { return qint64(offset); }      ///< behind its last byte
    /// Whether the `{` or `;` that ends it was found; false when the text ended first.
    bool complete() const { return terminated; }

private:
    std::string_view text;
    std::string_view nameText;
    std::string_view valueText;
    size_t beginning = 0;
    size_t marked = 0;
    size_t offset = 0;
    bool terminated = false;
};

/// The content of an open file, up to MaxBytes and a piece more of one that exceeds it. Where
/// reading fails, what came before.
QByteArray limitedContent(QIODevice &file);

/// A dotted key, split once: the group names from the top down, one at least, and the name of the
/// setting in the last of them. All are views of the key.
struct KeyPath
{
    explicit KeyPath(QStringView key)
    {
        for (const QStringView field : qTokenize(key, u'.')) {
            if (groups.size() >= 2 && field.isEmpty())
                break; // an empty field after a setting's name ends the key there
            groups.append(field);
        }
        if (groups.size() > 1) {
            setting = groups.back();
            groups.removeLast();
        }
    }

    QVarLengthArray<QStringView, 8> groups;
    QStringView setting;
};

/// What a "cfg" text holds, in its order: its settings and groups without white space at the ends
/// of the names, but for the groups without a member. A print run is answered from this list: to
/// build the toolkit's tree of the sample's 195 settings, and to take it down, takes 0.4 ms, a
/// tenth of the run.
class CfgContent
{
public:
    /// Reads the body of a group, up to the `};` that closes it or the end of the text.
    explicit CfgContent(QByteArray text);

    /// Whether the body had a setting or a group, also one that is left out.
    bool hasMember() const { return entries.front().hasMember; }
    /// Whether a `}` closes the body, and the bytes up to what is behind its `;`.
    bool isClosed() const { return closed; }
    qint64 size() const { return length; }

    /// The value of a setting, by the rules of `Config::lookup`: the key's first field names the
    /// first group of the body. Empty, non-null text when there is none.
    QString lookup(const KeyPath &path) const;

    struct Entry
    {
        std::string_view name;
        std::string_view value; // of a setting, with its quotes
        quint32 end = 0;        // the index behind it and all that it holds
        quint32 depth = 0;      // the groups around it
        bool isGroup = false;
        bool hasMember = false;
    };
    /// All that the body holds, in file order: a group, then what is in it.
    std::span<const Entry> members() const { return std::span(entries).subspan(1); }

private:
    QString valueIn(size_t group, QStringView setting) const;

    QByteArray text;                                    // ISO 8859-1
    std::vector<Entry> entries = std::vector<Entry>(1); // the body itself first
    qint64 length = 0;
    bool closed = false;
};

} // namespace libconfig
