// SPDX-License-Identifier: MIT
#include "tools/check/checkingdevice.h"

#include "render/vocabulary.h"
#include "tools/nearest.h"
#include "tools/terminal.h"

#include <algorithm>
#include <array>

namespace requestcheck {

using namespace Qt::StringLiterals;

CheckingDevice::CheckingDevice(const TagPlaces &places, tools::FindingStore &findings,
                               bool isConfigured)
    : CompanyPrinterDriver(u"/dev/null"_s)
    , places(places)
    , findings(findings)
    , isConfigured(isConfigured)
{
    stream = std::make_unique<QTextStream>(&paper);
}

CheckingDevice::~CheckingDevice()
{
    stream.reset(); // before the text that it writes to
}

void CheckingDevice::tell(Code code, const QString &text, tools::Place at)
{
    findings.add(finding(code, text, at));
}

tools::Place CheckingDevice::placeOf(QLatin1StringView attribute) const
{
    return places.attribute(current.atts.index(attribute));
}

bool CheckingDevice::startElement(const QString &namespaceURI, const QString &localName,
                                  const QString &qName, const QXmlAttributes &atts)
{
    if (++depth == 1)
        root = places.tag();
    current = {qName, atts, nullptr};
    hasPrinted = false;
    if (qName == element::method) {
        if (!startMethod(atts))
            return false;
    } else {
        checkElement();
    }
    const bool accepted = CompanyPrinterDriver::startElement(namespaceURI, localName, qName, atts);
    checkDescription();
    paper.truncate(0);
    return accepted;
}

bool CheckingDevice::endElement(const QString &namespaceURI, const QString &localName,
                                const QString &qName)
{
    --depth;
    return CompanyPrinterDriver::endElement(namespaceURI, localName, qName);
}

bool CheckingDevice::skippedEntity(const QString &name)
{
    tools::Place at = places.last(); // its semicolon
    at.column -= name.size() + 1;
    tell("unknown-entity",
         tools::excerpt(u'&' + name + u';') + " is not declared, and prints nothing"_L1, at);
    return CompanyPrinterDriver::skippedEntity(name);
}

bool CheckingDevice::endDocument()
{
    if (method < 0)
        tell("no-method", u"the request has no `method` element, and prints nothing"_s, root);
    return CompanyPrinterDriver::endDocument();
}

bool CheckingDevice::startMethod(const QXmlAttributes &atts)
{
    const QString name = valueOf(atts, "name"_L1);
    constexpr auto &methods = documentMethods;
    const DocumentMethod *const chosen = documentMethod(name);
    if (!chosen) {
        std::vector<QString> names;
        for (const DocumentMethod &other : methods)
            names.push_back(other.name);
        tell("unknown-method",
             (atts.index("name"_L1) < 0 ? u"`method` lacks the attribute `name`"_s
                                        : "unknown method "_L1 + tools::excerpt(name))
                 + tools::suggestion(name, names) + ": the print run stops here"_L1,
             placeOf("name"_L1));
        return false;
    }
    if (method >= 0)
        tell("second-method", u"a second `method`, which opens another section"_s, places.tag());
    method = chosen - methods.data();
    knownElements = elementsOf(method);
    if (knownElements.empty())
        tell("prints-nothing", u'`' + name + "` prints nothing, whatever the request holds"_L1,
             places.tag());
    current.row = &methodElement();
    for (int i = 0; i < atts.count(); ++i) {
        if (fateOf(*current.row, atts, i, settings) == Fate::Unread)
            tellUnread(i);
    }
    return true;
}

void CheckingDevice::checkElement()
{
    const bool isRoot = depth == 1;
    if (method >= 0) {
        current.row = elementRow(current.name, method);
        if (current.row)
            checkAttributes();
        else if (!knownElements.empty())
            checkUnknownElement();
    } else if (const bool isKnown = isKnownElement(current.name); !isRoot || isKnown) {
        const std::array method = {element::method.toString()};
        tell("before-method",
             tools::excerpt(current.name)
                 + " stands before the `method` element and prints nothing"_L1
                 + (isKnown ? QString() : tools::suggestion(current.name, method)),
             places.tag());
    }
}

void CheckingDevice::checkUnknownElement()
{
    Code code = "unknown-element";
    tell(code,
         findings.isFull(code.name)
             ? QString()
             : tools::excerpt(current.name) + " prints nothing in `"_L1 + currentMethod + u'`'
                   + tools::suggestion(current.name, knownElements),
         places.tag());
}

void CheckingDevice::checkAttributes()
{
    const ElementRow &row = *current.row;
    if (row.rest == Rest::Ignored) {
        if (current.atts.count() > 0)
            tell("prints-nothing",
                 u'`' + current.name + "` prints nothing in `"_L1 + currentMethod
                     + "`, its payments included"_L1,
                 places.tag());
        return;
    }
    if (isOff(row.onlyIf))
        tellSwitchedOff(row.onlyIf, current.name, places.tag());
    for (int i = 0; i < current.atts.count(); ++i)
        checkAttribute(i);
    checkMissing();
    if (row.rest == Rest::Triples)
        checkTriples();
}

void CheckingDevice::checkAttribute(int position)
{
    const ElementRow &row = *current.row;
    switch (fateOf(row, current.atts, position, settings)) {
    case Fate::Unread:
        tellUnread(position);
        break;
    case Fate::Printed:
        if (!row.isHidden(current.atts))
            checkValue(position);
        break;
    case Fate::SwitchedOff: {
        const AttributeUse *const use = row.find(current.atts.qName(position));
        if (!isOff(row.onlyIf) && use && !current.atts.value(position).isEmpty())
            tellSwitchedOff(use->onlyIf, current.atts.qName(position), places.attribute(position));
        break;
    }
    case Fate::Kept:
        break;
    }
}

void CheckingDevice::tellUnread(int position)
{
    const QString name = current.atts.qName(position);
    const tools::Place at = places.attribute(position);
    if (current.row->find(name)) {
        tell("duplicate-attribute",
             "a second `"_L1 + name + "` in `"_L1 + current.name + "` is not read"_L1, at);
        return;
    }
    std::vector<QString> names;
    if (!findings.isFull(Code("unknown-attribute").name)) {
        for (const AttributeUse &use : current.row->attributes)
            names.push_back(use.name);
    }
    tell("unknown-attribute",
         u'`' + current.name + "` does not read "_L1 + tools::excerpt(name)
             + tools::suggestion(name, names),
         at);
}

bool CheckingDevice::isOff(bool DocumentSettings::*aSwitch) const
{
    return aSwitch && !(settings.*aSwitch);
}

/// Once for a switch.
void CheckingDevice::tellSwitchedOff(bool DocumentSettings::*aSwitch, const QString &what,
                                     tools::Place at)
{
    const auto switches = switchSettings();
    const auto found = std::ranges::find(switches, aSwitch, &SettingKey<bool>::member);
    if (!isConfigured || found == switches.end())
        return;
    const QString key = docPath + found->keyWord;
    if (toldSwitches.insert(key).second)
        tell("switch-off", u'`' + key + "` is off: `"_L1 + what + "` is not printed"_L1, at);
}

void CheckingDevice::checkMissing()
{
    const ElementRow &row = *current.row;
    if (isOff(row.onlyIf) || row.isHidden(current.atts))
        return;
    for (const AttributeUse &use : row.attributes) {
        if (isOff(use.onlyIf) || use.need != Need::Expected || current.atts.index(use.name) >= 0)
            continue;
        const auto instead = use.column == Column::Sign ? "`-`"_L1 : "empty"_L1;
        tell("missing-attribute",
             u'`' + current.name + "` lacks `"_L1 + use.name + "`, which prints "_L1 + instead,
             places.tag());
    }
}

/// The documents stand by position behind the named attributes, which have to come first.
void CheckingDevice::checkTriples()
{
    const auto named = current.row->attributes;
    const int first = int(named.size());
    for (int i = 0; i < first; ++i) {
        const int position = current.atts.index(named[size_t(i)].name);
        if (position >= first || (position < 0 && current.atts.count() > first))
            tell("attribute-order",
                 u'`' + named[size_t(i)].name
                     + "` has to stand before the documents, which are read by position"_L1,
                 places.attribute(position));
    }
    constexpr int PerDocument = 3;
    const int missing = (PerDocument - (current.atts.count() - first) % PerDocument) % PerDocument;
    if (current.atts.count() > first && missing > 0)
        tell("missing-attribute",
             "the last document of `"_L1 + current.name + "` lacks "_L1 + QString::number(missing)
                 + " of its 3 attributes"_L1,
             places.attribute(current.atts.count() - 1));
}

} // namespace requestcheck
