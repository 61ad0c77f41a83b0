<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>HLibrary</name>
    <message>
        <source>PaperWindow</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Insert a new sheet</source>
        <translation>Inserire un nuovo foglio</translation>
    </message>
</context>
<context>
    <name>PrinterDriver</name>
    <message>
        <source>Date:</source>
        <translation>Data:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Ora:</translation>
    </message>
    <message>
        <source>Table:</source>
        <translation>Tavolo:</translation>
    </message>
    <message>
        <source>Waiter:</source>
        <translation>Cameriere:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Note:</translation>
    </message>
    <message>
        <source>Credit:</source>
        <translation>Credito:</translation>
    </message>
    <message>
        <source>Telephone:</source>
        <translation>Telefono:</translation>
    </message>
    <message>
        <source>License Number:</source>
        <translation>Partita IVA:</translation>
    </message>
    <message>
        <source>Fiscal Code:</source>
        <translation>Codice Fiscale:</translation>
    </message>
    <message>
        <source>Serial Number: </source>
        <translation>Numero progressivo: </translation>
    </message>
    <message>
        <source>Invoice Number:</source>
        <translation>Fattura n.:</translation>
    </message>
    <message>
        <source>Delivery Number:</source>
        <translation>DDT n.:</translation>
    </message>
    <message>
        <source>CUSTOMER</source>
        <translation>CLIENTE</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>SOMMA</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Qtà</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Prezzo</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importo</translation>
    </message>
    <message>
        <source>Taxable</source>
        <translation>Imponibile</translation>
    </message>
    <message>
        <source>TaxRate</source>
        <translation>Aliquota</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Imposta</translation>
    </message>
    <message>
        <source>    Amount not paid: </source>
        <translation>    Corrisp. non pagato: </translation>
    </message>
    <message>
        <source>Amount not paid: </source>
        <translation>Corrisp. non pagato: </translation>
    </message>
    <message>
        <source>Cash: </source>
        <translation>Contanti: </translation>
    </message>
    <message>
        <source>Credit Card: </source>
        <translation>Carta di credito: </translation>
    </message>
    <message>
        <source>Bancomat: </source>
        <translation>Bancomat: </translation>
    </message>
    <message>
        <source>Other: </source>
        <translation>Altro: </translation>
    </message>
    <message>
        <source>Serials</source>
        <translation>Progressivi</translation>
    </message>
    <message>
        <source>SUMMARIES</source>
        <translation>RIEPILOGHI</translation>
    </message>
    <message>
        <source>BeginDate: </source>
        <translation>Dal: </translation>
    </message>
    <message>
        <source>EndDate: </source>
        <translation>Al: </translation>
    </message>
    <message>
        <source>PREFISCAL SUMMARY</source>
        <translation>RIEPILOGO PRECONTI</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>RECEIPTS SUMMARY</source>
        <translation>RIEPILOGO RICEVUTE</translation>
    </message>
    <message>
        <source>TAXRATE</source>
        <translation>ALIQ.</translation>
    </message>
    <message>
        <source>TAXABLE</source>
        <translation>IMPONIBILE</translation>
    </message>
    <message>
        <source>TAX</source>
        <translation>IMPOSTA</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>IMPORTO</translation>
    </message>
    <message>
        <source>INVOICES SUMMARY</source>
        <translation>RIEPILOGO FATTURE</translation>
    </message>
    <message>
        <source>CANCELLED DOC SUMMARY</source>
        <translation>DOCUMENTI ANNULLATI</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>NUMERO</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Pagamento</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Ricevuta</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Fattura</translation>
    </message>
    <message>
        <source>Credit note</source>
        <translation>Nota credito</translation>
    </message>
    <message>
        <source>Opening balance</source>
        <translation>Saldo iniziale</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Description</source>
        <comment>statement of account</comment>
        <translation>Causale</translation>
    </message>
</context>
</TS>
