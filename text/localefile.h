// SPDX-License-Identifier: MIT
#pragma once

#include "text/localeencoding.h"

#include <QFile>
#include <QStringDecoder>

#include <limits>

namespace text {

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
