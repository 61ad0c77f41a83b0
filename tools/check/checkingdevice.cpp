// SPDX-License-Identifier: MIT
#include "tools/check/requestcheck.h"

#include "render/vocabulary.h"

#include <QTextCodec>

namespace requestcheck {

using namespace Qt::StringLiterals;

namespace {

/// The first names, and how many others there are.
QString someOf(QStringList names)
{
    constexpr qsizetype Most = 4;
    const qsizetype rest = names.size() - Most;
    names.resize(qMin(Most, names.size()));
    return u'`' + names.join("`, `"_L1) + u'`'
           + (rest > 0 ? u" and %1 more"_s.arg(rest) : QString());
}

/// Attributes of name spaces are read by others.
bool isOfNameSpace(QStringView attribute) { return attribute.contains(u':'); }

bool hasPlainAttributes(const QXmlAttributes &atts)
{
    for (int i = 0; i < atts.count(); ++i) {
        if (!isOfNameSpace(atts.qName(i)))
            return true;
    }
    return false;
}

} // namespace

CheckingDevice::CheckingDevice(bool isConfigured)
    : CompanyPrinterDriver(u"/dev/null"_s)
    , isConfigured(isConfigured)
{
    stream = std::make_unique<QTextStream>(&paper);
}

bool CheckingDevice::startElement(const QString &, const QString &, const QString &qName,
                                  const QXmlAttributes &attributes)
{
    unlessGroup.reset(); // it groups this one
    if (root.begin.line == 0) {
        root = places.tag();
        checkDeclaration();
    }
    open.emplace_back(qName, places.tag().begin.line);
    elementName = qName;
    atts = ownAttributes(attributes);
    row = nullptr;
    lastLine.reset();
    if (qName != element::method)
        checkElement();
    else if (!startMethod())
        return false;
    const bool accepted = CompanyPrinterDriver::startElement({}, {}, qName, attributes);
    checkDescription();
    paper.truncate(0);
    return accepted;
}

bool CheckingDevice::endElement(const QString &, const QString &, const QString &)
{
    tellPending();
    open.pop_back();
    return true;
}

/// Tells what does not group others: it has ended, or has attributes.
void CheckingDevice::tellPending()
{
    if (unlessGroup)
        findings.add(*std::exchange(unlessGroup, std::nullopt));
}

bool CheckingDevice::skippedEntity(const QString &name)
{
    const tools::Place last = places.last(); // its semicolon
    tell("unknown-entity",
         tools::excerpt(u'&' + name + u';') + " is not declared, and prints nothing"_L1,
         {{last.line, last.column - name.size() - 1}, {last.line, last.column + 1}});
    return true;
}

bool CheckingDevice::endDocument()
{
    if (method < 0)
        tell("no-method", u"the request has no `method` element, and prints nothing"_s, root);
    checkComplete();
    return CompanyPrinterDriver::endDocument();
}

/// The encoding that the XML declaration names.
void CheckingDevice::checkDeclaration()
{
    const QString &head = places.head();
    const std::u16string_view text(QStringView(head).utf16(), size_t(head.size()));
    const size_t quote = text.find_first_of(u"\"'", text.find(u"encoding"));
    if (!text.starts_with(u"<?xml") || quote == text.npos || quote > text.find(u"?>"))
        return;
    const QStringView before = QStringView(head).first(qsizetype(quote) + 1);
    const size_t end = std::min(text.find_first_of(u"\"'", quote + 1), text.size()); // of the head
    const QString name = head.sliced(before.size(), qsizetype(end) - before.size());
    if (name.startsWith("utf"_L1, Qt::CaseInsensitive))
        return;
    requestCodec = QTextCodec::codecForName(name.toLatin1());
    if (requestCodec)
        return;
    const qint64 column = before.size() - before.lastIndexOf(u'\n');
    const qint64 line = 1 + before.count(u'\n');
    tell("unknown-encoding",
         u"nobody knows the encoding %1: the request is read as UTF-8"_s.arg(tools::excerpt(name)),
         {{line, column}, {line, column + name.size()}});
}

bool CheckingDevice::startMethod()
{
    const QString name = atts.value("name"_L1);
    const DocumentMethod *const chosen = documentMethod(name);
    if (!chosen) {
        tell("unknown-method",
             (atts.index("name"_L1) < 0 ? u"`method` lacks the attribute `name`"_s
                                        : "unknown method "_L1 + tools::excerpt(name))
                 + ": the print run stops here"_L1,
             placeOf("name"_L1), methodNear(name));
        return false;
    }
    if (method >= 0)
        tell("second-method", u"a second `method`, which opens another section"_s);
    checkComplete();
    method = chosen - documentMethods.data();
    methodTag = places.tag();
    seenRoles.clear();
    knownElements.clear();
    for (const ElementRow *const read : rowsOf(method))
        knownElements.push_back(read->element.toString());
    if (knownElements.empty())
        tell("prints-nothing", u"`%1` prints nothing, whatever the request holds"_s.arg(name),
             methodTag);
    row = &methodElement;
    checkAttributes();
    return true;
}

/// Whether the document that ends has what it is for.
void CheckingDevice::checkComplete()
{
    const auto check = [this](Role role, Code code, const QString &fault) {
        const QString name = method < 0 ? QString() : elementWith(role, method);
        if (!name.isEmpty() && !seenRoles.contains(role))
            tell(code, fault.arg(name), methodTag);
    };
    check(Role::Item, "no-items", u"the document has no items: no `%1` is printed"_s);
    check(Role::Total, "no-total", u"the document has no total: no `%1` is printed"_s);
}

void CheckingDevice::checkElement()
{
    if (method >= 0) {
        row = elementRow(elementName, method);
        if (row)
            checkAttributes();
        else if (!knownElements.empty())
            checkUnknownElement();
        return;
    }
    const bool isKnown = isElement(elementName);
    if (open.size() == 1 && !isKnown) // the root
        return;
    const QStringList methodOnly{element::method.toString()};
    tellUnlessGroup("before-method",
                    u"%1 stands before the `method` element and prints nothing"_s.arg(
                        tools::excerpt(elementName)),
                    isKnown ? QString() : tools::nearest(elementName, methodOnly));
}

/// An element of a name that nobody knows, without attributes, may group others.
void CheckingDevice::tellUnlessGroup(Code code, const QString &text, const QString &meant)
{
    unlessGroup = finding(code, text, places.tag(), meant);
    if (!meant.isEmpty() || hasPlainAttributes(atts) || isElement(elementName))
        tellPending();
}

/// What a name that the document does not read stands for: the nearest that it reads, or what has
/// the same role in it. Empty where nothing is near.
QString CheckingDevice::meantElement() const
{
    QStringList names = knownElements;
    QStringList meant = knownElements;
    for (const ElementRow &other : elementRows()) {
        const QString same = elementWith(other.role, method);
        if (other.role != Role::Other && !same.isEmpty()) {
            names.push_back(other.element.toString());
            meant.push_back(same);
        }
    }
    const qsizetype found = names.indexOf(tools::nearest(elementName, names));
    const bool isRead = found < knownElements.size();
    if (found < 0 || (isRead && isElement(elementName)))
        return {}; // an element of another document is none that is misspelt
    return meant[found];
}

void CheckingDevice::checkUnknownElement()
{
    const Code code = "unknown-element";
    QString meant;
    QString text;
    if (!findings.isFull(code.name)) { // else it is only counted
        meant = meantElement();
        text = u"%1 prints nothing in `%2`"_s.arg(tools::excerpt(elementName), currentMethod);
        if (isElement(elementName))
            text += ": it is read in "_L1 + someOf(documentsWith(elementName));
        else if (meant.isEmpty())
            text += ", which reads "_L1 + someOf({knownElements.rbegin(), knownElements.rend()});
    }
    tellUnlessGroup(code, text, meant);
}

void CheckingDevice::checkAttributes()
{
    if (elementName == element::printers)
        printer = placeOf("name"_L1);
    else if (elementName == element::headers && printer.begin.line == 0)
        tell("no-printer",
             u"`headers` prints the printer's name, which no `printers` before it gives"_s);
    if (row->rest == Rest::Ignored) {
        if (hasPlainAttributes(atts))
            tell("prints-nothing", u"`%1` prints nothing in `%2`, its payments included"_s.arg(
                                       elementName, currentMethod));
        return;
    }
    const bool isHidden = row->hidesMarked && atts.value("name"_L1).startsWith(u'=');
    const bool isRowOff = isOff(settings, row->onlyIf);
    if (isHidden)
        tell("hidden-item", u"an item whose name begins with `=` is not printed"_s,
             placeOf("name"_L1));
    else
        seenRoles.insert(row->role);
    if (isRowOff)
        tellSwitchedOff(row->onlyIf, elementName, places.tag());
    for (int i = 0; i < atts.count(); ++i) {
        const Fate fate = fateOf(*row, atts, i, settings);
        const AttributeUse *const use = row->find(atts.qName(i));
        if (fate == Fate::Unread)
            tellUnread(i);
        else if (fate == Fate::Printed && !isHidden)
            checkValue(i, use);
        else if (fate == Fate::SwitchedOff && use && !isRowOff && !atts.value(i).isEmpty())
            tellSwitchedOff(use->onlyIf, use->name, places.attribute(i));
    }
    if (!isRowOff && !isHidden)
        checkMissing();
    if (row->rest == Rest::Triples)
        checkTriples();
}

void CheckingDevice::tellUnread(int position)
{
    const QString name = atts.qName(position);
    const Range at = places.attribute(position);
    if (row->find(name))
        return tell("duplicate-attribute",
                    u"a second `%1` in `%2` is not read"_s.arg(name, elementName), at);
    if (isOfNameSpace(name))
        return;
    const Code code = "unknown-attribute";
    if (findings.isFull(code.name))
        return tell(code, {}, at);
    QStringList names;
    for (const AttributeUse &use : row->attributes)
        names.push_back(use.name);
    const QString meant = tools::nearest(name, names);
    QString text = u"`%1` does not read %2"_s.arg(elementName, tools::excerpt(name));
    if (meant.isEmpty())
        text += names.empty() ? u", nor any other"_s : ", but "_L1 + someOf(names);
    tell(code, text, at, meant);
}

/// Once for a switch.
void CheckingDevice::tellSwitchedOff(bool DocumentSettings::*aSwitch, const QString &what,
                                     const Range &at)
{
    const QString key = docPath + keyWordOf(aSwitch);
    if (isConfigured && toldSwitches.insert(key).second)
        tell("switch-off", u"`%1` is off: `%2` is not printed"_s.arg(key, what), at);
}

void CheckingDevice::checkMissing()
{
    for (const AttributeUse &use : row->attributes) {
        const bool isChecked = row->isFiscal() && use.name != "name"_L1; // when it is printed
        if (!isOff(settings, use.onlyIf) && use.isPrinted && !isChecked && atts.index(use.name) < 0)
            tell("missing-attribute",
                 u"`%1` lacks `%2`, which prints %3"_s.arg(
                     elementName, use.name, use.column == Column::Sign ? "`-`"_L1 : "empty"_L1));
    }
}

/// The documents stand by position behind the named attributes, which have to come first.
void CheckingDevice::checkTriples()
{
    constexpr int PerDocument = 3;
    const int first = int(row->attributes.size());
    for (const AttributeUse &use : row->attributes) {
        const int position = atts.index(use.name);
        if (position >= first || (position < 0 && atts.count() > first))
            tell("attribute-order",
                 u"`%1` has to stand before the documents, which are read by position"_s.arg(
                     use.name),
                 places.attribute(position));
    }
    const int missing = (PerDocument - (atts.count() - first) % PerDocument) % PerDocument;
    if (atts.count() > first && missing > 0)
        tell("missing-attribute",
             u"the last document of `%1` lacks %2 of its 3 attributes"_s.arg(
                 elementName, QString::number(missing)),
             places.attribute(atts.count() - 1));
}

} // namespace requestcheck
