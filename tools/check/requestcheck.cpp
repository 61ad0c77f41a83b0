// SPDX-License-Identifier: MIT
#include "tools/check/requestcheck.h"

#include "render/requestreader.h"
#include "tools/check/checkingdevice.h"

namespace requestcheck {

using namespace Qt::StringLiterals;

namespace {

/// The limit of the print run that a request exceeds; empty for a reason that is none.
QString exceededLimit(requestreader::Stop why)
{
    using enum requestreader::Stop;
    switch (why) {
    case Depth:
        return u"elements nest deeper than %1"_s.arg(requestreader::MaxDepth);
    case Size:
        return u"the request is longer than %1 bytes"_s.arg(requestreader::MaxRequestBytes);
    case Attributes:
        return u"an element has more than %1 attributes"_s.arg(requestreader::MaxAttributes);
    case DocumentType:
        return u"the document type is longer than %1 bytes"_s.arg(
            requestreader::MaxDocumentTypeBytes);
    case Entity:
        return u"an entity is longer than %1 characters or holds other entities"_s.arg(
            requestreader::MaxEntitySize);
    case EntityReferences:
        return u"a request that declares entities has more than %1 references"_s.arg(
            requestreader::MaxEntityReferences);
    case Fault:
    case Refused: // which the device has told
        break;
    }
    return {};
}

void tellStop(const TagPlaces &places, tools::FindingStore &findings)
{
    const auto tell = [&](const codes::Code &code, const QString &text) {
        findings.add(
            {code.severity, code.name, text + ": the print run stops here"_L1, places.last(), -1});
    };
    const QString limit = exceededLimit(*places.stop);
    if (!limit.isEmpty())
        tell(codes::limit, limit);
    else if (places.isEmpty())
        findings.add({codes::xml.severity, codes::xml.name, u"the request is empty"_s, {}, -1});
    else if (*places.stop == requestreader::Stop::Fault)
        tell(codes::xml, places.fault);
}

} // namespace

std::vector<tools::Finding> check(QIODevice &request, bool isConfigured)
{
    TagPlaces places;
    tools::FindingStore findings;
    CheckingDevice device(places, findings, isConfigured);
    requestreader::read(request, device, &places);
    if (places.stop)
        tellStop(places, findings);
    return findings.take();
}

} // namespace requestcheck
