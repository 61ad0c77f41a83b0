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
/// Why the last operation on the file failed, in the user's language where the system says it.
QString reasonOf(const QFileDevice &file);

/// Encodes one text after the other with `codec`; null means UTF-8. A character that the codec
/// lacks becomes one `?`, also where it is a surrogate pair. Which characters it has is remembered:
/// it takes a microsecond to tell of each.
class Encoder
{
public:
    explicit Encoder(QTextCodec *codec)
        : codec(codec)
    {
    }
    QByteArray encode(QStringView text);
    bool isUtf8() const { return !codec; }

private:
    bool isKnown(char32_t character);

    QTextCodec *const codec;
    QHash<char32_t, bool> known;
};

/// One text, with `codec` or in the encoding of the user's locale.
inline QByteArray encoded(QStringView text, QTextCodec *codec)
{
    return Encoder(codec).encode(text);
}
inline QByteArray toLocale(QStringView text) { return encoded(text, localeCodec()); }

/// A file that is written through a QTextStream and holds its text in the encoding of `codec`, that
/// of the user's locale unless given; null means UTF-8. It may be opened by its name, or on an open
/// descriptor (QFile::open), a pipe's as well as one of memory alone. The stream keeps its own
/// default encoding, UTF-8: what it hands over is recoded here, whole characters at a time, so
/// nothing but the stream may write.
class LocaleFile : public QFile
{
public:
    explicit LocaleFile(const QString &name = {}, QTextCodec *codec = localeCodec())
        : QFile(name)
        , encoder(codec)
    {
    }
    /// From now on, what leads the bytes written beyond `bytes` fails as it does on a full disk.
    void limitTo(qint64 bytes) { room = bytes; }
    void close() override;

protected:
    qint64 writeData(const char *data, qint64 length) override;

private:
    bool writeWhole(QByteArrayView bytes);

    qint64 room = std::numeric_limits<qint64>::max(); // bytes that may still be written
    QStringDecoder decoder{QStringDecoder::Utf8, QStringDecoder::Flag::Stateless
                                                     | QStringDecoder::Flag::ConvertInitialBom};
    Encoder encoder;
};

} // namespace text
