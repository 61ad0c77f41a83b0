// SPDX-License-Identifier: MIT
#include "tools/finding.h"

#include "tools/terminal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <map>
#include <utility>

namespace tools {

using namespace Qt::StringLiterals;

std::vector<Finding> abridged(std::vector<Finding> findings)
{
    constexpr int Most = 100;
    std::ranges::stable_sort(findings, {}, [](const Finding &finding) {
        return std::pair(finding.at.line, finding.at.column);
    });
    std::map<QLatin1StringView, int> counts;
    std::vector<Finding> result;
    for (Finding &finding : findings) {
        if (++counts[finding.code] <= Most)
            result.push_back(std::move(finding));
    }
    for (const auto &[code, count] : counts) {
        if (count > Most)
            result.push_back({Severity::Note,
                              code,
                              QString::number(count - Most) + " more like this"_L1,
                              {},
                              -1});
    }
    return result;
}

QLatin1StringView severityName(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return "note"_L1;
    case Severity::Warning:
        return "warning"_L1;
    case Severity::Error:
        break;
    }
    return "error"_L1;
}

QString findingLines(const QString &fileName, const std::vector<Finding> &findings)
{
    QString lines;
    for (const Finding &finding : findings) {
        lines += inOneLine(fileName) + u':';
        if (finding.at.line > 0)
            lines +=
                QString::number(finding.at.line) + u':' + QString::number(finding.at.column) + u':';
        lines += u' ' + severityName(finding.severity) + ": "_L1 + finding.text + " ["_L1
                 + finding.code + "]\n"_L1;
    }
    return lines;
}

QString findingsAsJson(const QString &fileName, const std::vector<Finding> &findings)
{
    QJsonArray array;
    for (const Finding &finding : findings)
        array.append(QJsonObject{{u"file"_s, fileName},
                                 {u"line"_s, finding.at.line},
                                 {u"column"_s, finding.at.column},
                                 {u"severity"_s, severityName(finding.severity)},
                                 {u"code"_s, finding.code},
                                 {u"message"_s, finding.text}});
    return QString::fromUtf8(QJsonDocument(array).toJson());
}

} // namespace tools
