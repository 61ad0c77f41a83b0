// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

class QIODevice;

namespace libconfig {

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
    explicit CfgScanner(std::string_view text);

    /// Goes on to the end of the next statement.
    Statement next();

    // Of the statement that next() answered last.

    /// The name of a group or a setting: up to its first NUL, without white space at its ends.
    QString name() const;
    /// The value of a setting, the same way and without its double quotes, wherever they stand.
    QString value() const;
    /// Their bytes; those of a value still with its quotes.
    std::string_view trimmedName() const;
    std::string_view trimmedValue() const;
    /// The bytes before the structural character, and those between it and what ends the statement.
    std::string_view rawName() const { return text.substr(beginning, marked - beginning); }
    std::string_view rawValue() const;

    // Where it stands, in bytes from the text's first.

    qint64 begin() const { return qint64(beginning); } ///< of its first byte
    qint64 mark() const { return qint64(marked); }     ///< of `:`, `=` or `}`; of the text's end
    qint64 end() const { return qint64(offset); }      ///< behind its last byte
    /// Whether the `{` or `;` that ends it was found; false when the text ended first.
    bool complete() const { return terminated; }

private:
    std::string_view text;
    size_t beginning = 0;
    size_t marked = 0;
    size_t offset = 0;
    bool terminated = false;
};

/// The content of an open file, up to MaxBytes and a piece more of one that exceeds it. Where
/// reading fails, what came before.
QByteArray limitedContent(QIODevice &file);

/// What is kept of a value's bytes: all but the double quotes.
QString withoutQuotes(std::string_view value);

} // namespace libconfig
