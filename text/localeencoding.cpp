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

/// The codeset name of the locale that the environment asks for; empty when it is not installed.
/// A locale object of its own: the process's locale is the toolkit's, which makes it UTF-8.
QByteArray environmentCodeset()
{
    const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
    if (!locale)
        return {};
    QByteArray codeset(nl_langinfo_l(CODESET, locale));
    freelocale(locale);
    return codeset;
}

QTextCodec *codecOfEnvironment()
{
    constexpr int Utf8Mib = 106;
    if (asksForUtf8())
        return nullptr;
    const QByteArray codeset = environmentCodeset();
    const bool plainAscii = codeset == "ANSI_X3.4-1968"; // the "C" locale
    if (codeset.isEmpty() || plainAscii || codeset.compare("UTF-8", Qt::CaseInsensitive) == 0)
        return nullptr;
    QTextCodec *const codec = QTextCodec::codecForName(codeset);
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

QByteArray toLocale(QStringView text)
{
    return encoded(text, localeCodec());
}

QByteArray encoded(QStringView text, QTextCodec *codec)
{
    return Encoder(codec).encode(text);
}

Encoder::Encoder(QTextCodec *codec)
    : codec(codec)
{
}

QByteArray Encoder::encode(QStringView text)
{
    if (!codec)
        return text.toUtf8();
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString encodable = withoutUnknown(text);
    return codec->fromUnicode(encodable.constData(), int(encodable.size()), &state);
}

/// The text with a `?` for each character that the codec lacks. The toolkit's codecs write one for
/// each half of a surrogate pair, and drop invisible characters without a trace.
QString Encoder::withoutUnknown(QStringView text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const QStringView character = text.sliced(i, pair ? 2 : 1);
        i += pair ? 1 : 0;
        if (isKnown(character))
            result += character;
        else
            result += u'?';
    }
    return result;
}

bool Encoder::isKnown(QStringView character)
{
    const QChar first = character.front();
    if (first.unicode() < 0x80)
        return true;
    const char32_t code = character.size() == 1 ? char32_t(first.unicode())
                                                : QChar::surrogateToUcs4(first, character.back());
    const auto seen = known.constFind(code);
    if (seen != known.cend())
        return *seen;
    const bool has = codec->canEncode(character) && !codec->fromUnicode(character).isEmpty();
    known.insert(code, has);
    return has;
}

LocaleFile::LocaleFile(const QString &name, QTextCodec *codec)
    : QFile(name)
    , isUtf8(codec == nullptr)
    , decoder(QStringDecoder::Utf8,
              QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom)
    , encoder(codec)
{
}

qint64 LocaleFile::writeData(const char *data, qint64 length)
{
    if (isUtf8)
        return writeWhole({data, length}) ? length : -1;
    const QString text = decoder(QByteArrayView(data, length));
    return writeWhole(encoder.encode(text)) ? length : -1;
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
