// SPDX-License-Identifier: MIT
#include "tools/finding.h"

#include "tools/terminal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace tools {

using namespace Qt::StringLiterals;

namespace {

void sortByPlace(std::vector<Finding> &findings)
{
    std::ranges::stable_sort(findings, {}, [](const Finding &finding) {
        return std::pair(finding.at.begin.line, finding.at.begin.column);
    });
}

/// The word for a severity, as messages bear it.
QLatin1StringView severityName(Severity severity)
{
    return severity == Severity::Note      ? "note"_L1
           : severity == Severity::Warning ? "warning"_L1
                                           : "error"_L1;
}

} // namespace

void FindingStore::add(Finding finding)
{
    if (++counts[finding.code] <= MostOfACode)
        kept.push_back(std::move(finding));
}

bool FindingStore::isFull(QLatin1StringView code) const
{
    const auto count = counts.find(code);
    return count != counts.end() && count->second >= MostOfACode;
}

std::vector<Finding> FindingStore::take()
{
    sortByPlace(kept);
    for (const auto &[code, count] : std::exchange(counts, {})) {
        if (count > MostOfACode)
            kept.push_back(
                {Severity::Note, code, Finding::tr("%1 more like this").arg(count - MostOfACode)});
    }
    return std::exchange(kept, {});
}

std::vector<Finding> abridged(std::vector<Finding> findings)
{
    sortByPlace(findings);
    FindingStore store;
    for (Finding &finding : findings)
        store.add(std::move(finding));
    return store.take();
}

bool hasError(const std::vector<Finding> &findings)
{
    return std::ranges::find(findings, Severity::Error, &Finding::severity) != findings.end();
}

QString findingLines(const QString &fileName, const std::vector<Finding> &findings)
{
    QString lines;
    for (const auto &[severity, code, text, at, subject, suggestion] : findings) {
        lines += inOneLine(fileName) + u':';
        if (at.begin.line > 0)
            lines += u"%1:%2:"_s.arg(at.begin.line).arg(at.begin.column);
        lines += u' ' + severityName(severity) + ": "_L1 + text + " ["_L1 + code + "]\n"_L1;
    }
    return lines;
}

QString findingsAsJson(const std::vector<FileFindings> &files)
{
    QJsonArray array;
    for (const auto &[fileName, findings] : files) {
        for (const auto &[severity, code, text, at, subject, suggestion] : findings) {
            QJsonObject object{{u"file"_s, fileName},
                               {u"line"_s, at.begin.line},
                               {u"column"_s, at.begin.column},
                               {u"severity"_s, severityName(severity)},
                               {u"code"_s, code},
                               {u"message"_s, text}};
            if (at.end.line > 0) {
                object.insert(u"endLine"_s, at.end.line);
                object.insert(u"endColumn"_s, at.end.column);
            }
            if (!suggestion.isEmpty())
                object.insert(u"suggestion"_s, suggestion);
            array.append(object);
        }
    }
    return QString::fromUtf8(QJsonDocument(array).toJson());
}

} // namespace tools
