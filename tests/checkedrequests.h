// SPDX-License-Identifier: MIT
#pragma once

#include "tests/recordingdevice.h"
#include "tools/check/requestcheck.h"

#include <QBuffer>

#include <set>

/// Requests, and what the check finds in them under the process's configuration.
namespace support {

using Codes = std::set<std::string>;

inline std::vector<tools::Finding> findingsIn(QByteArray request)
{
    QBuffer buffer(&request);
    return requestcheck::check(buffer, true);
}

inline Codes codesIn(const QByteArray &request)
{
    Codes codes;
    for (const tools::Finding &finding : findingsIn(request))
        codes.insert(finding.code.data());
    return codes;
}

/// A request of one document.
inline QByteArray document(const QByteArray &method, const QByteArray &elements)
{
    return "<p><method name='print" + method + "'/>" + elements + "</p>";
}

} // namespace support
