// SPDX-License-Identifier: MIT
#include "text/localefile.h"

#include <cerrno>

namespace text {

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
