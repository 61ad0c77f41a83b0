// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QStringDecoder>

class QTextCodec;

namespace text {

/// A file that is written through a QTextStream and holds its text in the encoding of the user's
/// locale (see localeCodec()). The stream keeps its own default encoding, UTF-8: what it hands
/// over is recoded here, whole characters at a time, so nothing but the stream may write.
class LocaleFile : public QFile
{
public:
    explicit LocaleFile(const QString &name);

protected:
    qint64 writeData(const char *data, qint64 length) override;

private:
    bool writeWhole(QByteArrayView bytes);

    QTextCodec *const codec; // null: the locale is UTF-8, bytes pass as they are
    QStringDecoder decoder;
};

} // namespace text
