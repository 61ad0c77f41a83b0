<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>HLibrary</name>
    <message>
        <source>PaperWindow</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Insert a new sheet</source>
        <translation>Inserte una hoja nueva</translation>
    </message>
</context>
<context>
    <name>PrinterDriver</name>
    <message>
        <source>Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Hora:</translation>
    </message>
    <message>
        <source>Table:</source>
        <translation>Mesa:</translation>
    </message>
    <message>
        <source>Waiter:</source>
        <translation>Camarero:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>Credit:</source>
        <translation>Crédito:</translation>
    </message>
    <message>
        <source>Telephone:</source>
        <translation>Teléfono:</translation>
    </message>
    <message>
        <source>License Number:</source>
        <translation>NIF-IVA:</translation>
    </message>
    <message>
        <source>Fiscal Code:</source>
        <translation>NIF:</translation>
    </message>
    <message>
        <source>Serial Number: </source>
        <translation>N.º de recibo: </translation>
    </message>
    <message>
        <source>Invoice Number:</source>
        <translation>Factura n.º:</translation>
    </message>
    <message>
        <source>Delivery Number:</source>
        <translation>Albarán n.º:</translation>
    </message>
    <message>
        <source>CUSTOMER</source>
        <translation>CLIENTE</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>TOTAL</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Uds</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Precio</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Taxable</source>
        <translation>Base imp.</translation>
    </message>
    <message>
        <source>TaxRate</source>
        <translation>Tipo de IVA</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Cuota de IVA</translation>
    </message>
    <message>
        <source>    Amount not paid: </source>
        <translation>    Pendiente de pago: </translation>
    </message>
    <message>
        <source>Amount not paid: </source>
        <translation>Pendiente de pago: </translation>
    </message>
    <message>
        <source>Cash: </source>
        <translation>Efectivo: </translation>
    </message>
    <message>
        <source>Credit Card: </source>
        <translation>Tarjeta de crédito: </translation>
    </message>
    <message>
        <source>Bancomat: </source>
        <translation>Tarjeta de débito: </translation>
    </message>
    <message>
        <source>Other: </source>
        <translation>Otros: </translation>
    </message>
    <message>
        <source>Serials</source>
        <translation>Números</translation>
    </message>
    <message>
        <source>SUMMARIES</source>
        <translation>RESUMEN</translation>
    </message>
    <message>
        <source>BeginDate: </source>
        <translation>Desde: </translation>
    </message>
    <message>
        <source>EndDate: </source>
        <translation>Hasta: </translation>
    </message>
    <message>
        <source>PREFISCAL SUMMARY</source>
        <translation>PRECUENTAS</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>RECEIPTS SUMMARY</source>
        <translation>RECIBOS</translation>
    </message>
    <message>
        <source>TAXRATE</source>
        <translation>TIPO</translation>
    </message>
    <message>
        <source>TAXABLE</source>
        <translation>BASE IMP.</translation>
    </message>
    <message>
        <source>TAX</source>
        <translation>CUOTA IVA</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>IMPORTE</translation>
    </message>
    <message>
        <source>INVOICES SUMMARY</source>
        <translation>FACTURAS</translation>
    </message>
    <message>
        <source>CANCELLED DOC SUMMARY</source>
        <translation>DOCUMENTOS ANULADOS</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>NÚMERO</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Pago</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Recibo</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Factura</translation>
    </message>
    <message>
        <source>Credit note</source>
        <translation>Abono</translation>
    </message>
    <message>
        <source>Opening balance</source>
        <translation>Saldo inicial</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Description</source>
        <comment>statement of account</comment>
        <translation>Detalle</translation>
    </message>
</context>
</TS>
