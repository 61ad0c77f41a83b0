// SPDX-License-Identifier: MIT
#include "tools/check/requestcheck.h"

#include "app/translation.h"
#include "app/ztconfiguration.h"
#include "text/localeencoding.h"
#include "tools/command.h"

namespace requestcheck {

using namespace Qt::StringLiterals;

/// What is wrong where the reader met a fault, and what to do: what it took last says more than its
/// own word, which is used for what is rare.
QString CheckingDevice::faultToTell() const
{
    using enum TagPlaces::In;
    const bool isOpen = !open.empty();
    const auto &[name, line] = isOpen ? open.back() : std::pair<QString, qint64>();
    const QString inside = u"`%1`, open since line %2, is not closed"_s.arg(name).arg(line);
    const QString &fault = places.fault;
    const bool isAtEnd = fault == "unexpected end of file"_L1;
    const TagPlaces::In in = places.wasIn();
    const QStringView two = places.lastTwo();
    const QString &head = places.head();
    const std::pair<bool, QString> reasons[] = {
        {isAtEnd && places.isIn() == Quotes,
         u"the request ends in a value, whose quote is missing"_s},
        {isAtEnd && isOpen, "the request ends, and "_L1 + inside},
        {isAtEnd, u"the request ends without an element"_s},
        {fault == "tag mismatch"_L1, inside + " before this end tag"_L1},
        {two.contains(u'&'), u"a bare `&` is written `&amp;`"_s},
        {fault == "error occurred while parsing reference"_L1,
         u"a reference ends with `;`, and a bare `&` is written `&amp;`"_s},
        {two.contains(u'<') && (in == Quotes || (isOpen && two.back().isSpace())),
         u"a bare `<` is written `&lt;`"_s},
        {in == Attribute, u"an attribute is a name, `=` and a value in quotes"_s},
        {isOpen && two.front() == u'<', u"a name begins with a letter"_s},
        {fault == "invalid name for processing instruction"_L1,
         u"the XML declaration has to stand at the very beginning"_s},
        {fault == "error occurred while parsing comment"_L1, u"a comment holds no `--`"_s},
        {isOpen || fault.contains("declaration"_L1) || fault.contains("document type"_L1), fault},
        {head.startsWith("<?xml"_L1) && !head.contains("?>"_L1),
         u"the XML declaration holds `version`, `encoding` and `standalone` in this order, in "
         "quotes, and ends with `?>`"_s},
        {root.begin.line > 0, u"something stands behind the end of the root element"_s},
        {head.contains("<!DOCTYPE"_L1), fault.endsWith(u'.') ? fault.chopped(1) : fault},
        {true, u"no element begins here: the request is another file, or not in the encoding that "
               "it names"_s},
    };
    return std::ranges::find(reasons, true, &std::pair<bool, QString>::first)->second;
}

std::vector<tools::Finding> CheckingDevice::takeFindings()
{
    using requestreader::Stop;
    tellPending();
    const Stop why = places.stop.value_or(Stop::Refused); // which has been told
    const QString limit = requestreader::exceededLimit(why);
    tools::Place at = places.last();
    at.column -= places.lastTwo().startsWith(u'&') ? 1 : 0; // which the character behind it tells
    const Range here{at, {at.line, at.column + 1}};
    const auto stops = ": the print run stops here"_L1;
    if (places.stop && at.line == 0)
        tell("xml", u"the request is empty"_s, {});
    else if (!limit.isEmpty())
        tell("limit", limit + stops, here);
    else if (why == Stop::Fault)
        tell("xml", faultToTell() + stops, here);
    return findings.take();
}

std::vector<tools::Finding> check(QIODevice &request, bool isConfigured)
{
    CheckingDevice device(isConfigured);
    requestreader::read(request, device, &device.places);
    return device.takeFindings();
}

namespace {

/// Checks every file; one that cannot be read is told and does not keep the others from it.
int checkFiles(const tools::Call &call, const tools::RequestFiles &files,
               const tools::CommandLine &line, bool isConfigured)
{
    const bool asJson = line.isSet(u"json"_s);
    int status = files.isWhole ? tools::Fine : tools::Trouble;
    std::vector<tools::FileFindings> kept;
    const auto add = [&](tools::FileFindings file) {
        if (tools::hasError(file.findings))
            status = qMax(status, int(tools::Findings));
        if (asJson)
            kept.push_back(std::move(file));
        else
            tools::printOut(findingLines(file.fileName, file.findings));
    };
    if (!isConfigured)
        add({ZTConfiguration::userFile(),
             {finding("no-configuration",
                      u"there is no such file: everything that a switch decides about is left "
                      u"away, and columns have no width; `zentaro config init` writes one"_s)}});
    for (const QString &name : files.names) {
        const auto request = tools::openedRequest(call, name);
        if (!request) {
            status = tools::Trouble;
            continue;
        }
        tools::FileFindings file{name, check(*request, isConfigured)};
        for (tools::Finding &told : file.findings) {
            if (told.severity == tools::Severity::Warning && line.isSet(u"werror"_s))
                told.severity = tools::Severity::Error;
        }
        if (request->error() != QFile::NoError)
            status = tools::tellTrouble(call, name, text::reasonOf(*request));
        else
            add(std::move(file));
    }
    if (asJson)
        tools::printBytes(tools::findingsAsJson(kept));
    return status;
}

} // namespace

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
    line.addPositionalArgument(u"REQUEST"_s, u"A print request, or a folder of them."_s,
                               u"REQUEST..."_s);
    line.read(1, -1);
    const auto application = makeApplication(call.argc, call.argv);
    QTranslator labels; // which have the lengths that they have on paper
    const bool isConfigured = tools::useConfiguration(call, line.value(u"config"_s), labels);
    return checkFiles(call, tools::requestFiles(call, line.positionalArguments()), line,
                      isConfigured);
}

} // namespace requestcheck
