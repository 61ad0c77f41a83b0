// SPDX-License-Identifier: MIT
#pragma once

#include "render/companyprinterdriver.h"
#include "tools/check/elementtable.h"
#include "tools/check/requestcheck.h"
#include "tools/check/tagplaces.h"

#include <set>

namespace requestcheck {

/// The receipt printer once more, given the same elements: what it would write is looked at line by
/// line and thrown away, and each element is held against the table of elements.
class CheckingDevice : public CompanyPrinterDriver
{
public:
    /// `places` follows the same reading. Without a configuration, what switches leave away is not
    /// told: they are all off.
    CheckingDevice(const TagPlaces &places, tools::FindingStore &findings, bool isConfigured);
    ~CheckingDevice() override;

    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                      const QXmlAttributes &atts) override;
    bool endElement(const QString &namespaceURI, const QString &localName,
                    const QString &qName) override;
    bool skippedEntity(const QString &name) override;
    bool endDocument() override;

    void println(unsigned int indent, const QString &text) override;
    using CompanyPrinterDriver::println;
    void printSeparatorLine() override;
    void printRowFiscal(const QString &department, const QString &quantity,
                        const QString &description, const QString &price) override;
    using CompanyPrinterDriver::printRowFiscal;

private:
    /// The element that is being printed.
    struct Element
    {
        QString name;
        QXmlAttributes atts;
        const ElementRow *row = nullptr; ///< null: the method does not react to it
    };

    void tell(Code code, const QString &text, tools::Place at);
    tools::Place placeOf(QLatin1StringView attribute) const;
    bool isOff(bool DocumentSettings::*aSwitch) const; ///< not for null, which is no switch

    bool startMethod(const QXmlAttributes &atts);
    void checkElement();
    void checkUnknownElement();
    // The attributes against the table.
    void checkAttributes();
    void checkAttribute(int position);
    void tellUnread(int position);
    void tellSwitchedOff(bool DocumentSettings::*aSwitch, const QString &what, tools::Place at);
    void checkMissing();
    void checkTriples();
    // The value of a printed attribute.
    void checkValue(int position);
    void checkCharacters(const QString &value, const QString &name, tools::Place at);
    void checkEncoding(const QString &value, const QString &name, tools::Place at);
    void checkAddress(const QString &value, const QString &name, tools::Place at);
    // The paper.
    void checkLine(const QString &text, qsizetype pad);
    void tellTooLong(const QString &text, qsizetype excess);
    void checkDescription();
    void tellCut(QLatin1StringView attribute, const QString &lost);
    void checkFiscalNumber(QLatin1StringView attribute, const QString &value);

    const TagPlaces &places;
    tools::FindingStore &findings;
    const bool isConfigured;
    QString paper;           // what was written since it was last looked at
    QString lastLine;        // printed for the element, without its frame
    bool hasPrinted = false; // the element
    bool isRule = false;
    int depth = 0;
    tools::Place root;
    qsizetype method = -1;              // the chosen one's place in documentMethods
    std::vector<QString> knownElements; // of the method
    std::set<QString> toldSwitches;     // by their keys
    Element current;
};

} // namespace requestcheck
