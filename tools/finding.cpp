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
        return std::pair(finding.at.line, finding.at.column);
    });
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
            kept.push_back({Severity::Note,
                            code,
                            QString::number(count - MostOfACode) + " more like this"_L1,
                            {},
                            -1});
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
    return findingsAsJson({{fileName, findings}});
}

QString findingsAsJson(const std::vector<FileFindings> &files)
{
    QJsonArray array;
    for (const FileFindings &file : files) {
        for (const Finding &finding : file.findings) {
            QJsonObject object{
                {u"file"_s, file.fileName},       {u"line"_s, finding.at.line},
                {u"column"_s, finding.at.column}, {u"severity"_s, severityName(finding.severity)},
                {u"code"_s, finding.code},        {u"message"_s, finding.text}};
            if (finding.end.line > 0) {
                object.insert(u"endLine"_s, finding.end.line);
                object.insert(u"endColumn"_s, finding.end.column);
            }
            if (!finding.suggestion.isEmpty())
                object.insert(u"suggestion"_s, finding.suggestion);
            array.append(object);
        }
    }
    return QString::fromUtf8(QJsonDocument(array).toJson());
}

} // namespace tools
