// SPDX-License-Identifier: MIT
// A print request of any bytes, checked: what is told has to fit the request and the print run.
#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "fuzz/expect.h"
#include "render/companyprinterdriver.h"
#include "render/requestreader.h"
#include "tools/check/requestcheck.h"

#include <QBuffer>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool isPrintedToItsEnd(const QByteArray &content)
{
    QBuffer request;
    request.setData(content);
    CompanyPrinterDriver device(u"/dev/null"_s);
    return requestreader::read(request, device);
}

/// Whether a finding says that the print run stops.
bool saysThatItStops(const tools::Finding &finding)
{
    constexpr std::array codes = {"xml"_L1, "limit"_L1, "unknown-method"_L1};
    return std::ranges::find(codes, finding.code) != codes.end();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static ZTConfiguration configuration(
        QStringLiteral(ZENTARO_SOURCE_DIR "/samples/zentaro-40.conf"), u"cfg"_s);
    SyncSingleton<ZTConfiguration>::instance_pointer = &configuration;
    const QByteArray content = fuzz::content(data, size);
    QBuffer request;
    request.setData(content);
    const std::vector<tools::Finding> findings = requestcheck::check(request, true);

    const bool stops = std::ranges::any_of(findings, saysThatItStops);
    fuzz::expectEqual(stops ? u"stops"_s : u"is whole"_s,
                      isPrintedToItsEnd(content) ? u"is whole"_s : u"stops"_s);
    const auto isLater = [](const tools::Finding &a, const tools::Finding &b) {
        const tools::Place &at = b.at.begin; // nowhere for a last one, which counts those left out
        return at.line > 0
               && std::pair(a.at.begin.line, a.at.begin.column) > std::pair(at.line, at.column);
    };
    if (std::ranges::adjacent_find(findings, isLater) != findings.end())
        fuzz::expectEqual(tools::findingLines(u"out of order"_s, findings), {});
    const QByteArray json = tools::findingsAsJson({{u"request"_s, findings}});
    if (!QJsonDocument::fromJson(json).isArray())
        fuzz::expectEqual(QString::fromUtf8(json), u"an array"_s);
    return 0;
}
