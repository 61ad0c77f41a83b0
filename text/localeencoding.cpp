// SPDX-License-Identifier: MIT
#include "text/localeencoding.h"

#include <QTextCodec>

#include <cerrno>
#include <cstring>

#include <langinfo.h>
#include <locale.h>

namespace text {
namespace {

/// Whether the environment asks for a locale of UTF-8, by its name: no file need be read to tell.
bool asksForUtf8()
{
    for (const char *const variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        if (const QByteArray name = qgetenv(variable).toUpper(); !name.isEmpty())
            return name.endsWith("UTF-8") || name.endsWith("UTF8");
    }
    return false;
}

QTextCodec *codecOfEnvironment()
{
    if (asksForUtf8())
        return nullptr;
    // A locale object of its own: the process's locale is the toolkit's, which makes it UTF-8.
    const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
    const QByteArray codeset(locale ? nl_langinfo_l(CODESET, locale) : "UTF-8");
    if (locale)
        freelocale(locale);
    constexpr int Utf8Mib = 106;
    const bool isPlainAscii = codeset == "ANSI_X3.4-1968"; // the "C" locale
    QTextCodec *const codec = isPlainAscii ? nullptr : QTextCodec::codecForName(codeset);
    return codec && codec->mibEnum() != Utf8Mib ? codec : nullptr;
}

} // namespace

QTextCodec *localeCodec()
{
    static QTextCodec *const codec = codecOfEnvironment();
    return codec;
}

QString systemMessage(int error)
{
    const locale_t locale = newlocale(LC_CTYPE_MASK | LC_MESSAGES_MASK, "", nullptr);
    const QByteArray message(locale ? strerror_l(error, locale) : strerror(error));
    if (locale)
        freelocale(locale);
    return localeCodec() ? localeCodec()->toUnicode(message) : QString::fromUtf8(message);
}

QString reasonOf(const QFileDevice &file)
{
    const int error = errno; // of the system, unless the toolkit says something of its own
    return file.errorString() == qt_error_string(error) ? systemMessage(error) : file.errorString();
}

QByteArray Encoder::encode(QStringView text)
{
    if (!codec)
        return text.toUtf8();
    // The toolkit's codecs write a `?` for each half of a surrogate pair that they lack, and drop
    // invisible characters without a trace.
    QString encodable;
    encodable.reserve(text.size());
    for (const char32_t character : text.toUcs4()) {
        if (isKnown(character))
            encodable += QChar::fromUcs4(character);
        else
            encodable += u'?';
    }
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return codec->fromUnicode(encodable.constData(), int(encodable.size()), &state);
}

bool Encoder::isKnown(char32_t character)
{
    if (character < 0x80)
        return true;
    if (const auto seen = known.constFind(character); seen != known.cend())
        return *seen;
    const auto text = QChar::fromUcs4(character);
    return *known.insert(character, codec->canEncode(text));
}

qint64 LocaleFile::writeData(const char *data, qint64 length)
{
    const bool isWritten =
        encoder.isUtf8()
            ? writeWhole({data, length})
            : writeWhole(encoder.encode(QString(decoder(QByteArrayView(data, length)))));
    return isWritten ? length : -1;
}

/// A disk that fills up takes a part; only the write after it tells the reason.
bool LocaleFile::writeWhole(QByteArrayView bytes)
{
    room -= bytes.size();
    if (room < 0) {
        setErrorString(systemMessage(EFBIG));
        return false;
    }
    while (!bytes.isEmpty()) {
        const qint64 taken = QFile::writeData(bytes.data(), bytes.size());
        if (taken <= 0) {
            setErrorString(systemMessage(errno));
            return false;
        }
        bytes = bytes.sliced(taken);
    }
    return true;
}

void LocaleFile::close()
{
    QFile::close();
    if (error() != NoError) // a server's disk may tell so late
        setErrorString(systemMessage(errno));
}

} // namespace text
