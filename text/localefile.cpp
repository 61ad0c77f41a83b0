// SPDX-License-Identifier: MIT
#include "text/localefile.h"

#include "text/localeencoding.h"

namespace text {

LocaleFile::LocaleFile(const QString &name)
    : QFile(name)
    , codec(localeCodec())
    , decoder(QStringDecoder::Utf8,
              QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom)
{
}

qint64 LocaleFile::writeData(const char *data, qint64 length)
{
    if (!codec)
        return QFile::writeData(data, length);
    const QString text = decoder(QByteArrayView(data, length));
    const QByteArray bytes = encoded(text, codec);
    return QFile::writeData(bytes.constData(), bytes.size()) == bytes.size() ? length : -1;
}

} // namespace text
