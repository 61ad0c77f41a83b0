// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QStringDecoder>
#include <QStringView>

#include <limits>

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

/// A file that is written through a QTextStream and holds its text in the encoding of `codec`, that
/// of the user's locale unless given; null means UTF-8. It may be opened by its name, or on an open
/// descriptor (QFile::open), a pipe's as well as one of memory alone. The stream keeps its own
/// default encoding, UTF-8: what it hands over is recoded here, whole characters at a time, so
/// nothing but the stream may write.
class LocaleFile : public QFile
{
public:
    explicit LocaleFile(const QString &name = {}, QTextCodec *codec = localeCodec());
    /// From now on, what leads the bytes written beyond `bytes` fails as it does on a full disk.
    void limitTo(qint64 bytes) { room = bytes; }
    void close() override;

protected:
    qint64 writeData(const char *data, qint64 length) override;

private:
    bool writeWhole(QByteArrayView bytes);

    qint64 room = std::numeric_limits<qint64>::max(); // bytes that may still be written
    const bool isUtf8;                                // bytes pass as they are
    QStringDecoder decoder;
    Encoder encoder;
};

} // namespace text
