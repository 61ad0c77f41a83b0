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
    <name>Document</name>
    <message>
        <source>The ticket that carries an order to where it is prepared: quantities and names</source>
        <translation>Der Bon, der eine Bestellung in die Küche bringt: Mengen und Namen</translation>
    </message>
    <message>
        <source>The pre-bill: items with prices</source>
        <translation>Die Vorrechnung: Posten mit Preisen</translation>
    </message>
    <message>
        <source>The receipt, one line per item</source>
        <translation>Die Quittung, eine Zeile je Posten</translation>
    </message>
    <message>
        <source>The invoice, one line per item</source>
        <translation>Die Rechnung, eine Zeile je Posten</translation>
    </message>
    <message>
        <source>The delivery note: its items are printed as on a ticket</source>
        <translation>Der Lieferschein: die Posten wie auf einem Bon</translation>
    </message>
    <message>
        <source>The fiscal receipt: a command line per item for the fiscal printer</source>
        <translation>Der Fiskalbon: eine Befehlszeile je Posten für den Fiskaldrucker</translation>
    </message>
    <message>
        <source>An order in summary: it prints nothing</source>
        <translation>Eine Bestellung in Kürze: druckt nichts</translation>
    </message>
    <message>
        <source>The receipt, one line per type of item</source>
        <translation>Die Quittung, eine Zeile je Warengruppe</translation>
    </message>
    <message>
        <source>The invoice, one line per type of item</source>
        <translation>Die Rechnung, eine Zeile je Warengruppe</translation>
    </message>
    <message>
        <source>The fiscal receipt, one command line per type of item</source>
        <translation>Der Fiskalbon, eine Befehlszeile je Warengruppe</translation>
    </message>
    <message>
        <source>The summary of a period</source>
        <translation>Die Zusammenfassung eines Zeitraums</translation>
    </message>
    <message>
        <source>The items sold in a period</source>
        <translation>Das Verkaufte eines Zeitraums</translation>
    </message>
    <message>
        <source>A customer&apos;s statement of account</source>
        <translation>Der Kontoauszug eines Kunden</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>the file begins with a byte order mark, which becomes part of its first name</source>
        <translation>die Datei beginnt mit einer Bytereihenfolge-Marke, die Teil ihres ersten Namens wird</translation>
    </message>
    <message>
        <source>no `{` follows the `:` of the group %1: the rest of the file is skipped</source>
        <translation>auf den `:` der Gruppe %1 folgt keine `{`: der Rest der Datei wird übergangen</translation>
    </message>
    <message>
        <source>no `{` of its own follows the `:` of the group %1: it takes that of line %2, and all between is lost: %3</source>
        <translation>auf den `:` der Gruppe %1 folgt keine eigene `{`: sie nimmt die von Zeile %2, und alles dazwischen geht verloren: %3</translation>
    </message>
    <message>
        <source>lost between `:` and `{`: %1</source>
        <translation>zwischen `:` und `{` verloren: %1</translation>
    </message>
    <message>
        <source>a NUL byte ends the value of %1</source>
        <translation>ein NUL-Byte beendet den Wert von %1</translation>
    </message>
    <message>
        <source>no setting, and lost: %1</source>
        <translation>keine Einstellung, und verloren: %1</translation>
    </message>
    <message>
        <source>this `}` closes no group</source>
        <translation>diese `}` schließt keine Gruppe</translation>
    </message>
    <message>
        <source>this `}` closes no group: reading ends here, and the rest of the file is lost: %1</source>
        <translation>diese `}` schließt keine Gruppe: das Lesen endet hier, und der Rest der Datei geht verloren: %1</translation>
    </message>
    <message>
        <source>no `;` follows the `}` of the group %1: all up to the next one is lost: %2</source>
        <translation>auf die `}` der Gruppe %1 folgt kein `;`: alles bis zum nächsten geht verloren: %2</translation>
    </message>
    <message>
        <source>no `;` follows the `}` of the group %1</source>
        <translation>auf die `}` der Gruppe %1 folgt kein `;`</translation>
    </message>
    <message>
        <source>the end of the file is lost: %1</source>
        <translation>das Ende der Datei geht verloren: %1</translation>
    </message>
    <message>
        <source>the group %1 is not closed</source>
        <translation>die Gruppe %1 ist nicht geschlossen</translation>
    </message>
    <message>
        <source>group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>a NUL byte ends the name of the %1 %2</source>
        <translation>ein NUL-Byte beendet den Namen %2 (%1)</translation>
    </message>
    <message>
        <source>a `;` too many became part of the %1 %2</source>
        <translation>ein `;` zu viel wurde Teil des Namens %2 (%1)</translation>
    </message>
    <message>
        <source>%1 became part of the %2 %3: %4</source>
        <translation>%1 wurde Teil des Namens %3 (%2): %4</translation>
    </message>
    <message>
        <source>there are no comments</source>
        <translation>Kommentare gibt es nicht</translation>
    </message>
    <message>
        <source>it is neither `key = value;` nor `group : {`</source>
        <translation>es ist weder `Schlüssel = Wert;` noch `Gruppe : {`</translation>
    </message>
    <message>
        <source>%1 is read as a %2: there are no comments</source>
        <translation>%1 wird als Name gelesen (%2): Kommentare gibt es nicht</translation>
    </message>
    <message>
        <source>a `{` became part of the %1 %2: the `:` before it is missing</source>
        <translation>eine `{` wurde Teil des Namens %2 (%1): der `:` davor fehlt</translation>
    </message>
    <message>
        <source>no `;` ends the value of %1: it runs to the end of the file</source>
        <translation>kein `;` beendet den Wert von %1: er reicht bis zum Ende der Datei</translation>
    </message>
    <message>
        <source>the quoted value of %1 goes on to line %2</source>
        <translation>der Wert von %1 in Anführungszeichen geht bis Zeile %2 weiter</translation>
    </message>
    <message>
        <source>no `;` ends the value of %1 on its line: it runs on to line %2 and takes in %3</source>
        <translation>kein `;` beendet den Wert von %1 auf seiner Zeile: er geht bis Zeile %2 weiter und nimmt %3 mit</translation>
    </message>
    <message>
        <source>double quotes inside a value are lost: %1 is %2</source>
        <translation>Anführungszeichen in einem Wert gehen verloren: %1 ist %2</translation>
    </message>
    <message>
        <source>nothing is escaped, and it breaks the file</source>
        <translation>nichts wird maskiert, und es macht die Datei kaputt</translation>
    </message>
    <message>
        <source>it breaks what is written around it</source>
        <translation>es macht kaputt, was ringsum geschrieben wird</translation>
    </message>
    <message>
        <source>it is read back as %1</source>
        <translation>es wird als %1 zurückgelesen</translation>
    </message>
    <message>
        <source>the name %1: %2</source>
        <translation>der Name %1: %2</translation>
    </message>
    <message>
        <source>everything: the setting %1 outside any group makes a file that is no XML</source>
        <translation>alles: mit der Einstellung %1 außerhalb aller Gruppen ist die Datei kein XML</translation>
    </message>
    <message>
        <source>the value of %1: %2</source>
        <translation>der Wert von %1: %2</translation>
    </message>
    <message>
        <source>the value %1 of %2: the key stands there twice</source>
        <translation>der Wert %1 von %2: der Schlüssel steht dort zweimal</translation>
    </message>
    <message>
        <source>the group %1, which is empty</source>
        <translation>die Gruppe %1, die leer ist</translation>
    </message>
    <message>
        <source>the group %1 with all it holds: only the first top-level group is written</source>
        <translation>die Gruppe %1 mit allem darin: nur die erste Gruppe der obersten Ebene wird geschrieben</translation>
    </message>
    <message>
        <source>text that is no setting: %1</source>
        <translation>Text, der keine Einstellung ist: %1</translation>
    </message>
    <message>
        <source>groups nest more than %1 deep</source>
        <translation>Gruppen sind mehr als %1 Ebenen tief verschachtelt</translation>
    </message>
    <message>
        <source>nothing of the file is read: %1</source>
        <translation>von der Datei wird nichts gelesen: %1</translation>
    </message>
    <message>
        <source>not well-formed, nothing of the file is read: %1</source>
        <translation>nicht wohlgeformt, von der Datei wird nichts gelesen: %1</translation>
    </message>
    <message>
        <source>the file has no group: every setting is empty</source>
        <translation>die Datei hat keine Gruppe: jede Einstellung ist leer</translation>
    </message>
    <message>
        <source>the group %1 is empty and counts for nothing</source>
        <translation>die Gruppe %1 ist leer und zählt nicht</translation>
    </message>
    <message>
        <source>the group %1 stands here again: of a key in both, the first value that is not empty counts</source>
        <translation>die Gruppe %1 steht hier noch einmal: von einem Schlüssel in beiden zählt der erste Wert, der nicht leer ist</translation>
    </message>
    <message>
        <source>nothing reads the group %1</source>
        <translation>nichts liest die Gruppe %1</translation>
    </message>
    <message>
        <source>nothing in the group %1 is ever found: only the first top-level group is looked at</source>
        <translation>in der Gruppe %1 wird nie etwas gefunden: nur die erste Gruppe der obersten Ebene wird angesehen</translation>
    </message>
    <message>
        <source>no key is ever found: the first group is %1, not `%2`</source>
        <translation>kein Schlüssel wird je gefunden: die erste Gruppe ist %1, nicht `%2`</translation>
    </message>
    <message>
        <source>no lookup finds the key %1 outside any group</source>
        <translation>keine Suche findet den Schlüssel %1 außerhalb aller Gruppen</translation>
    </message>
    <message>
        <source>the key %1 is overridden: it stands in this group again</source>
        <translation>der Schlüssel %1 gilt nicht: er steht noch einmal in dieser Gruppe</translation>
    </message>
    <message>
        <source>no lookup finds the key %1: a `.` stands between the names of groups</source>
        <translation>keine Suche findet den Schlüssel %1: ein `.` steht zwischen den Namen von Gruppen</translation>
    </message>
    <message>
        <source>nothing reads the key %1</source>
        <translation>nichts liest den Schlüssel %1</translation>
    </message>
    <message>
        <source>no lookup finds this %1: an earlier group of the name has it</source>
        <translation>keine Suche findet dieses %1: eine frühere Gruppe des Namens hat es</translation>
    </message>
    <message>
        <source> (it belongs to `%1`)</source>
        <translation> (er gehört zu `%1`)</translation>
    </message>
    <message>
        <source>%1 wants a whole number, not %2: 0 is read</source>
        <translation>%1 verlangt eine ganze Zahl, nicht %2: 0 wird gelesen</translation>
    </message>
    <message>
        <source>%1 is %2, which is not between 0 and %3</source>
        <translation>%1 ist %2, was nicht zwischen 0 und %3 liegt</translation>
    </message>
    <message>
        <source>%1 is %2, neither &quot;true&quot; nor &quot;false&quot;: it is off</source>
        <translation>%1 ist %2, weder &quot;true&quot; noch &quot;false&quot;: es ist aus</translation>
    </message>
    <message>
        <source>%1 is %2: every line is logged</source>
        <translation>%1 ist %2: jede Zeile wird protokolliert</translation>
    </message>
    <message>
        <source>%1 is %2: nothing is logged</source>
        <translation>%1 ist %2: nichts wird protokolliert</translation>
    </message>
    <message>
        <source>%1: quantity, price and total take %2 characters with what stands between them, the paper has %3: nothing is left for the description</source>
        <translation>%1: Menge, Preis und Summe nehmen mit dem, was dazwischen steht, %2 Zeichen ein, das Papier hat %3: für die Bezeichnung bleibt nichts</translation>
    </message>
    <message>
        <source>there is no language file %1</source>
        <translation>es gibt keine Sprachdatei %1</translation>
    </message>
    <message>
        <source>there is no language file %1: labels stay in English</source>
        <translation>es gibt keine Sprachdatei %1: die Beschriftungen bleiben englisch</translation>
    </message>
    <message>
        <source>%1 more like this</source>
        <translation>%1 weitere von dieser Art</translation>
    </message>
    <message>
        <source> (did you mean `%1`?)</source>
        <translation> (war `%1` gemeint?)</translation>
    </message>
    <message>
        <source>without its line end</source>
        <translation>ohne Zeilenende</translation>
    </message>
    <message>
        <source>ends with a carriage return</source>
        <translation>endet mit einem Wagenrücklauf</translation>
    </message>
    <message>
        <source>without its carriage return</source>
        <translation>ohne Wagenrücklauf</translation>
    </message>
    <message>
        <source>fiscal</source>
        <translation>fiskalisch</translation>
    </message>
    <message>
        <source>closes what was not opened</source>
        <translation>schließt, was nicht geöffnet war</translation>
    </message>
    <message>
        <source>the section is not closed</source>
        <translation>der Abschnitt ist nicht geschlossen</translation>
    </message>
    <message>
        <source>outside of a section</source>
        <translation>außerhalb eines Abschnitts</translation>
    </message>
    <message>
        <source>a double quote ends the name early</source>
        <translation>ein Anführungszeichen beendet den Namen vorzeitig</translation>
    </message>
    <message>
        <source>quantity and price take digits and at most one point</source>
        <translation>Menge und Preis bestehen aus Ziffern und höchstens einem Punkt</translation>
    </message>
    <message>
        <source>the department is no number</source>
        <translation>die Abteilung ist keine Zahl</translation>
    </message>
    <message>
        <source>empty line</source>
        <translation>leere Zeile</translation>
    </message>
    <message>
        <source>ends at its first &quot;@</source>
        <translation>endet beim ersten &quot;@</translation>
    </message>
    <message>
        <source>without its opening quote</source>
        <translation>ohne Anführungszeichen am Anfang</translation>
    </message>
    <message>
        <source>without its closing &quot;@</source>
        <translation>ohne &quot;@ am Ende</translation>
    </message>
    <message>
        <source>not framed: a command to the printer</source>
        <translation>nicht gerahmt: ein Befehl an den Drucker</translation>
    </message>
    <message>
        <source>there is no memory for the print file</source>
        <translation>für die Druckdatei fehlt der Speicher</translation>
    </message>
    <message>
        <source>more than %1 bytes would be printed</source>
        <translation>es würden mehr als %1 Bytes gedruckt</translation>
    </message>
    <message>
        <source>line %1: the print run stops reading here</source>
        <translation>Zeile %1: Der Druck liest hier nicht weiter</translation>
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
        <source>Characters that an item&apos;s name keeps in a fiscal receipt by item. 0 means the default.</source>
        <translation>Zeichen, die der Name eines Postens im Fiskalbon je Posten behält. 0 bedeutet die Vorgabe.</translation>
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
