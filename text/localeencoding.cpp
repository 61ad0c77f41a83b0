// SPDX-License-Identifier: MIT
#include "text/localeencoding.h"

#include <QTextCodec>

#include <langinfo.h>
#include <locale.h>

namespace text {
namespace {

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
    const QByteArray codeset = environmentCodeset();
    const bool plainAscii = codeset == "ANSI_X3.4-1968"; // the "C" locale
    if (codeset.isEmpty() || plainAscii || codeset.compare("UTF-8", Qt::CaseInsensitive) == 0)
        return nullptr;
    QTextCodec *const codec = QTextCodec::codecForName(codeset);
    return codec && codec->mibEnum() != Utf8Mib ? codec : nullptr;
}

/// Single `?` for each surrogate pair that `codec` lacks: the toolkit's codecs write one per unit.
QString withoutUnknownPairs(QStringView text, const QTextCodec *codec)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (!pair)
            result += text[i];
        else if (const QStringView both = text.mid(i++, 2); codec->canEncode(both))
            result += both;
        else
            result += QLatin1Char('?');
    }
    return result;
}

} // namespace

QTextCodec *localeCodec()
{
    static QTextCodec *const codec = codecOfEnvironment();
    return codec;
}

QByteArray toLocale(QStringView text)
{
    return encoded(text, localeCodec());
}

QByteArray encoded(QStringView text, QTextCodec *codec)
{
    if (!codec)
        return text.toUtf8();
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString known = withoutUnknownPairs(text, codec);
    return codec->fromUnicode(known.constData(), int(known.size()), &state);
}

} // namespace text
