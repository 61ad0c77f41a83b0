<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ConfigEditor</name>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>%1 cannot be edited.</source>
        <translation>%1 kann nicht bearbeitet werden.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Es ist keine Datei.</translation>
    </message>
    <message>
        <source>It has more than 64 MiB.</source>
        <translation>Es hat mehr als 64 MiB.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Its groups stand too deep within each other.</source>
        <translation>Seine Gruppen sind zu tief ineinander verschachtelt.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Open a Print Request</source>
        <translation>Druckauftrag öffnen</translation>
    </message>
    <message>
        <source>%1 cannot be shown.</source>
        <translation>%1 kann nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>%1 konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>%1 has changed since it was opened.</source>
        <translation>%1 hat sich geändert, seit es geöffnet wurde.</translation>
    </message>
    <message>
        <source>Saving replaces it with what this window shows.</source>
        <translation>Speichern ersetzt es durch das, was dieses Fenster zeigt.</translation>
    </message>
    <message>
        <source>The file that is written will lack something:</source>
        <translation>In der geschriebenen Datei wird etwas fehlen:</translation>
    </message>
    <message>
        <source>%1 has changes that are not saved.</source>
        <translation>%1 hat nicht gespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>saving loses %1</source>
        <translation>beim Speichern geht verloren: %1</translation>
    </message>
    <message>
        <source>In the file, line %1: %2</source>
        <translation>In der Datei, Zeile %1: %2</translation>
    </message>
    <message>
        <source>Nothing wrong</source>
        <translation>Keine Mängel</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>Befunde: %1</translation>
    </message>
    <message>
        <source>This file cannot be written: %1. “Save As” writes another.</source>
        <translation>Diese Datei kann nicht geschrieben werden: %1. „Speichern unter“ schreibt eine andere.</translation>
    </message>
    <message>
        <source>There are no settings yet. “zentaro config init” writes a complete configuration to start from; or add a group “zentaro” first.</source>
        <translation>Es gibt noch keine Einstellungen. „zentaro config init“ schreibt eine vollständige Konfiguration als Anfang; oder fügen Sie zuerst eine Gruppe „zentaro“ hinzu.</translation>
    </message>
    <message>
        <source>Search keys (Ctrl+F)</source>
        <translation>Schlüssel suchen (Strg+F)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>W&amp;iederholen</translation>
    </message>
    <message>
        <source>Add &amp;Setting</source>
        <translation>&amp;Einstellung hinzufügen</translation>
    </message>
    <message>
        <source>Add &amp;Group</source>
        <translation>&amp;Gruppe hinzufügen</translation>
    </message>
    <message>
        <source>Change &amp;Value</source>
        <translation>&amp;Wert ändern</translation>
    </message>
    <message>
        <source>Switch &amp;On or Off</source>
        <translation>Ein- oder aus&amp;schalten</translation>
    </message>
    <message>
        <source>Set &amp;Everywhere</source>
        <translation>&amp;Überall setzen</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>Su&amp;chen</translation>
    </message>
    <message>
        <source>&amp;Next Finding</source>
        <translation>&amp;Nächster Befund</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Papier</translation>
    </message>
    <message>
        <source>Open a &amp;Print Request…</source>
        <translation>&amp;Druckauftrag öffnen …</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Ren&amp;ame</source>
        <translation>&amp;Umbenennen</translation>
    </message>
</context>
<context>
    <name>PaperPane</name>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>It is not a print request.</source>
        <translation>Es ist kein Druckauftrag.</translation>
    </message>
    <message>
        <source>No setting in the file shapes this line.</source>
        <translation>Keine Einstellung der Datei formt diese Zeile.</translation>
    </message>
    <message>
        <source>This line is shaped by: %1</source>
        <translation>Diese Zeile formen: %1</translation>
    </message>
    <message>
        <source>It has more than 1 MiB.</source>
        <translation>Es hat mehr als 1 MiB.</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>The folder of the translations of the printed labels.</source>
        <translation>Der Ordner der Übersetzungen der gedruckten Beschriftungen.</translation>
    </message>
    <message>
        <source>Which translation: / for that of the system&apos;s language, or a name that is put right behind the folder&apos;s.</source>
        <translation>Welche Übersetzung: / für die Sprache des Systems, oder ein Name, der unmittelbar hinter den des Ordners gesetzt wird.</translation>
    </message>
    <message>
        <source>Lines below this level are not logged: DEBUG, INFO, WARNING, ERROR or FATAL, in any letter case. Any other text means the default.</source>
        <translation>Zeilen unter dieser Stufe werden nicht protokolliert: DEBUG, INFO, WARNING, ERROR oder FATAL, groß oder klein. Jeder andere Text bedeutet die Vorgabe.</translation>
    </message>
    <message>
        <source>The folder of the log file; it has to exist.</source>
        <translation>Der Ordner der Protokolldatei; es muss ihn geben.</translation>
    </message>
    <message>
        <source>The name of the log file in its folder.</source>
        <translation>Der Name der Protokolldatei in ihrem Ordner.</translation>
    </message>
    <message>
        <source>APPEND goes on in the log file, OVERWRITE empties it first, in any letter case. With any other text nothing is logged.</source>
        <translation>APPEND setzt die Protokolldatei fort, OVERWRITE leert sie zuvor, groß oder klein. Bei jedem anderen Text wird nichts protokolliert.</translation>
    </message>
    <message>
        <source>The name of the database.</source>
        <translation>Der Name der Datenbank.</translation>
    </message>
    <message>
        <source>The database&apos;s user.</source>
        <translation>Der Benutzer der Datenbank.</translation>
    </message>
    <message>
        <source>The user&apos;s password, which whoever may read this file can read.</source>
        <translation>Das Kennwort des Benutzers, das lesen kann, wer diese Datei lesen darf.</translation>
    </message>
    <message>
        <source>The database&apos;s server.</source>
        <translation>Der Server der Datenbank.</translation>
    </message>
    <message>
        <source>The folder of the suite&apos;s programs.</source>
        <translation>Der Ordner der Programme der Suite.</translation>
    </message>
    <message>
        <source>Characters of the quantity column.</source>
        <translation>Zeichen der Mengenspalte.</translation>
    </message>
    <message>
        <source>Characters of the unit price column; in a statement of account, of the amount.</source>
        <translation>Zeichen der Spalte des Einzelpreises; in einem Kontoauszug des Betrags.</translation>
    </message>
    <message>
        <source>Characters of the column of line totals.</source>
        <translation>Zeichen der Spalte der Zeilensummen.</translation>
    </message>
    <message>
        <source>Characters in a line. The description gets what the other columns leave, and is cut to it. 0 means the default.</source>
        <translation>Zeichen in einer Zeile. Die Beschreibung erhält, was die anderen Spalten lassen, und wird darauf gekürzt. 0 bedeutet die Vorgabe.</translation>
    </message>
    <message>
        <source>Nothing on this printer: kept for printers with pages.</source>
        <translation>Nichts bei diesem Drucker: bleibt für Drucker mit Seiten.</translation>
    </message>
    <message>
        <source>Nothing on this printer: kept for printers with styles.</source>
        <translation>Nichts bei diesem Drucker: bleibt für Drucker mit Stilen.</translation>
    </message>
    <message>
        <source>Empty lines of the top margin, which printGeometry switches on.</source>
        <translation>Leerzeilen des oberen Rands, den printGeometry einschaltet.</translation>
    </message>
    <message>
        <source>Characters that an item&apos;s name keeps in a fiscal receipt by item. 0 means the default, a negative number cuts nothing.</source>
        <translation>Zeichen, die der Name eines Postens im Fiskalbon je Posten behält. 0 bedeutet die Vorgabe, eine negative Zahl kürzt nichts.</translation>
    </message>
    <message>
        <source>The copies that the suite&apos;s programs print of the document.</source>
        <translation>Die Ausfertigungen, die die Programme der Suite vom Dokument drucken.</translation>
    </message>
    <message>
        <source>Prints the top margin, at the geometry element.</source>
        <translation>Druckt den oberen Rand, beim Element geometry.</translation>
    </message>
    <message>
        <source>Prints the lines of the headers element; the printer&apos;s name below them is printed always.</source>
        <translation>Druckt die Zeilen des Elements headers; der Name des Druckers darunter wird immer gedruckt.</translation>
    </message>
    <message>
        <source>Nothing on this printer, which has no logo.</source>
        <translation>Nichts bei diesem Drucker, der kein Logo hat.</translation>
    </message>
    <message>
        <source>Prints the company element.</source>
        <translation>Druckt das Element company.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s delivery address.</source>
        <translation>Druckt die Lieferadresse des Kunden.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s billing address.</source>
        <translation>Druckt die Rechnungsadresse des Kunden.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s telephone.</source>
        <translation>Druckt das Telefon des Kunden.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s date.</source>
        <translation>Druckt das Datum der Bestellung.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s time.</source>
        <translation>Druckt die Uhrzeit der Bestellung.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s table.</source>
        <translation>Druckt den Tisch der Bestellung.</translation>
    </message>
    <message>
        <source>Prints the customer element. Without it no other setting of the customer counts.</source>
        <translation>Druckt das Element customer. Ohne es zählt keine andere Einstellung des Kunden.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s license number.</source>
        <translation>Druckt die Steuernummer des Kunden.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s fiscal code.</source>
        <translation>Druckt den Steuercode des Kunden.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s credit.</source>
        <translation>Druckt das Guthaben der Bestellung.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s waiter.</source>
        <translation>Druckt den Kellner der Bestellung.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s note.</source>
        <translation>Druckt die Notiz der Bestellung.</translation>
    </message>
    <message>
        <source>Nothing on this printer, which has no drawer.</source>
        <translation>Nichts bei diesem Drucker, der keine Schublade hat.</translation>
    </message>
</context>
<context>
    <name>SettingPane</name>
    <message>
        <source>Set Everywhere</source>
        <translation>Überall setzen</translation>
    </message>
    <message>
        <source>Gives every document that has this setting the same value.</source>
        <translation>Gibt jedem Dokument, das diese Einstellung hat, denselben Wert.</translation>
    </message>
    <message>
        <source>Nothing reads this key.</source>
        <translation>Nichts liest diesen Schlüssel.</translation>
    </message>
    <message>
        <source>0 to %1.</source>
        <translation>0 bis %1.</translation>
    </message>
    <message>
        <source>Unless set: %1.</source>
        <translation>Ohne Angabe: %1.</translation>
    </message>
    <message>
        <source>&amp;Value: on</source>
        <translation>&amp;Wert: ein</translation>
    </message>
    <message>
        <source>Choose a folder (F4)</source>
        <translation>Ordner wählen (F4)</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>as the system (/)</source>
        <translation>wie das System (/)</translation>
    </message>
</context>
</TS>
