// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// What the fuzz targets share.
namespace fuzz {

/// Ends the process as a finding, with what was expected and what was found, unless they are equal.
inline void expectEqual(const QString &found, const QString &expected)
{
    if (found == expected)
        return;
    std::fprintf(stderr, "expected:\n%s\nfound:\n%s\n", qUtf8Printable(expected),
                 qUtf8Printable(found));
    std::abort();
}

/// The input, whose bytes are not copied.
inline QByteArray content(const uint8_t *data, size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
}

} // namespace fuzz
