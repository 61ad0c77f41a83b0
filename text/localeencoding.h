// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringView>

class QTextCodec;

namespace text {

/// The codec of the user's locale, as the environment (LC_ALL, LC_CTYPE, LANG) names it; the
/// toolkit itself switches every process to UTF-8 and is not asked. Answers null for UTF-8, and so
/// for the "C" locale, for a locale that is not installed and for an unknown codeset.
/// The codec belongs to the toolkit.
QTextCodec *localeCodec();

/// What the system calls an error, a value of `errno`, in the user's language, whatever locale the
/// process is in.
QString systemMessage(int error);

/// `text` in the encoding of the user's locale. A character that the encoding lacks becomes one
/// `?`, also where the character is a surrogate pair.
QByteArray toLocale(QStringView text);

/// As toLocale(text), with `codec` in place of the locale's; null means UTF-8.
QByteArray encoded(QStringView text, QTextCodec *codec);

/// The same for one text after the other: remembers which characters the codec has, which takes it
/// a microsecond to tell of each.
class Encoder
{
public:
    explicit Encoder(QTextCodec *codec);
    QByteArray encode(QStringView text);

private:
    QString withoutUnknown(QStringView text);
    bool isKnown(QStringView character);

    QTextCodec *const codec;
    QHash<char32_t, bool> known;
};

} // namespace text
