// SPDX-License-Identifier: MIT
#include "tools/check/requestcheck.h"

#include "app/ztconfiguration.h"
#include "render/requestreader.h"
#include "tools/check/checkingdevice.h"
#include "tools/requests/configurationinuse.h"
#include "tools/requests/requestfiles.h"
#include "tools/terminal.h"

#include <QCoreApplication>

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
    const auto tell = [&](Code code, const QString &text) {
        findings.add(finding(code, text + ": the print run stops here"_L1, places.last()));
    };
    const QString limit = exceededLimit(*places.stop);
    if (!limit.isEmpty())
        tell("limit", limit);
    else if (places.isEmpty())
        findings.add(finding("xml", u"the request is empty"_s));
    else if (*places.stop == requestreader::Stop::Fault)
        tell("xml", places.fault);
}

/// What `--werror` makes of the findings.
void promoteWarnings(std::vector<tools::Finding> &findings)
{
    for (tools::Finding &finding : findings) {
        if (finding.severity == tools::Severity::Warning)
            finding.severity = tools::Severity::Error;
    }
}

/// Prints the findings as they come, or keeps them for one array.
class Printer
{
public:
    explicit Printer(bool asJson)
        : asJson(asJson)
    {
    }

    void add(tools::FileFindings file)
    {
        if (tools::hasError(file.findings))
            status = qMax(status, int(tools::Findings));
        if (asJson)
            files.push_back(std::move(file));
        else
            note(tools::printOut(tools::findingLines(file.fileName, file.findings)));
    }
    /// An exit status that is worse than the one so far counts.
    void note(int other) { status = qMax(status, other); }
    /// Prints what is left; answers the exit status.
    int end()
    {
        if (asJson)
            note(tools::printBytes(tools::findingsAsJson(files).toUtf8()));
        return status;
    }

private:
    const bool asJson;
    int status = tools::Fine;
    std::vector<tools::FileFindings> files;
};

tools::FileFindings withoutConfiguration()
{
    return {ZTConfiguration::userFile(),
            {finding("no-configuration",
                     u"there is no such file: everything that a switch decides about is left "
                     u"away, and columns have no width"_s)}};
}

/// Checks every file; one that cannot be read is told and does not keep the others from it.
int checkFiles(const tools::Call &call, const QStringList &files, const tools::CommandLine &line,
               bool isConfigured)
{
    Printer printer(line.isSet(u"json"_s));
    if (!isConfigured)
        printer.add(withoutConfiguration());
    for (const QString &name : files) {
        const std::unique_ptr<QIODevice> request = tools::openedRequest(call, name);
        if (!request) {
            printer.note(tools::Trouble);
            continue;
        }
        std::vector<tools::Finding> findings = check(*request, isConfigured);
        if (line.isSet(u"werror"_s))
            promoteWarnings(findings);
        printer.add({name, std::move(findings)});
    }
    return printer.end();
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

int run(const tools::Call &call)
{
    tools::CommandLine line(
        call, u"Reads print requests as the print run does and tells what is wrong with them:\n"
              u"FILE:LINE:COLUMN: SEVERITY: TEXT [CODE], at most a hundred lines of a code.\n"
              u"A folder stands for the .xml files in it, - for standard input.\n"
              u"The exit status is 1 when there is an error."_s);
    tools::addConfigurationOption(line);
    line.addOption({u"json"_s, u"Prints a JSON array instead."_s});
    line.addOption({u"werror"_s, u"Makes every warning an error."_s});
    line.addArgument(u"REQUEST"_s, u"A print request, or a folder of them."_s, u"REQUEST..."_s);
    if (const auto done = line.read(1, -1))
        return *done;
    const QCoreApplication application(call.argc, call.argv);
    tools::ConfigurationInUse configuration; // its labels have the lengths that they have on paper
    if (!configuration.use(call, line.value(u"config"_s)))
        return tools::Trouble;
    const auto files = tools::requestFiles(call, line.arguments());
    return files ? checkFiles(call, *files, line, !configuration.isMissing()) : tools::Trouble;
}

} // namespace requestcheck
