// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <istream>
#include <string>
#include <string_view>

namespace libconfig {

/// The grammar of the "cfg" form: takes a stream of bytes apart, statement by statement. The
/// store's reader stands on it, and so does whoever tells a person where a file goes wrong.
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

    explicit CfgScanner(std::istream &stream);

    /// Reads on to the end of the next statement.
    Statement next();

    // Of the statement that next() answered last.

    /// The name of a group or a setting: up to its first NUL, without white space at its ends.
    QString name() const;
    /// The value of a setting, the same way and without its double quotes, wherever they stand.
    QString value() const;
    /// Their bytes; those of a value still with its quotes.
    std::string_view trimmedName() const;
    std::string_view trimmedValue() const;
    /// The bytes before the structural character, and those between it and the end of a value.
    const std::string &rawName() const { return nameText; }
    const std::string &rawValue() const { return valueText; }

    // Where it stands, in bytes from where the scanner began.

    qint64 begin() const { return beginning; } ///< of its first byte
    qint64 mark() const { return marked; }     ///< of `:`, `=` or `}`; of the end of the file
    qint64 end() const { return offset; }      ///< behind its last byte
    /// Whether the `{` or `;` that ends it was found; false when the file ended first.
    bool complete() const { return terminated; }

    /// Skips the input up to and including `c`; false when the end of the file came first.
    static bool skipPast(std::istream &stream, char c);

private:
    static constexpr int EndOfInput = std::istream::traits_type::eof();

    Statement nextFromBuffer();
    template <typename IsEnd>
    int readUntil(IsEnd isEnd, std::string *text);
    void skipPast(char c);
    void readValue();

    std::istream &input;
    std::string nameText;
    std::string valueText;
    qint64 beginning = 0;
    qint64 marked = 0;
    qint64 offset = 0;
    bool terminated = false;
};

} // namespace libconfig
