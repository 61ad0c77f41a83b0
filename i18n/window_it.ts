<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>ConfigEditor</name>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>%1 cannot be edited.</source>
        <translation>%1 non si può modificare.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Non è un file.</translation>
    </message>
    <message>
        <source>It has more than 64 MiB.</source>
        <translation>Supera i 64 MiB.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 non si può leggere.</translation>
    </message>
    <message>
        <source>Its groups stand too deep within each other.</source>
        <translation>I suoi gruppi sono annidati troppo in profondità.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configurazione</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salva con nome</translation>
    </message>
    <message>
        <source>Open a Print Request</source>
        <translation>Apri una richiesta di stampa</translation>
    </message>
    <message>
        <source>%1 cannot be shown.</source>
        <translation>%1 non si può mostrare.</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>%1 non è stato scritto.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Salvato %1</translation>
    </message>
    <message>
        <source>%1 has changed since it was opened.</source>
        <translation>%1 è cambiato da quando è stato aperto.</translation>
    </message>
    <message>
        <source>Saving replaces it with what this window shows.</source>
        <translation>Salvando, lo si sostituisce con ciò che mostra questa finestra.</translation>
    </message>
    <message>
        <source>The file that is written will lack something:</source>
        <translation>Nel file scritto mancherà qualcosa:</translation>
    </message>
    <message>
        <source>%1 has changes that are not saved.</source>
        <translation>%1 ha modifiche non salvate.</translation>
    </message>
    <message>
        <source>saving loses %1</source>
        <translation>salvando si perde %1</translation>
    </message>
    <message>
        <source>In the file, line %1: %2</source>
        <translation>Nel file, riga %1: %2</translation>
    </message>
    <message>
        <source>Nothing wrong</source>
        <translation>Nessun problema</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>Problemi: %1</translation>
    </message>
    <message>
        <source>This file cannot be written: %1. “Save As” writes another.</source>
        <translation>Questo file non si può scrivere: %1. «Salva con nome» ne scrive un altro.</translation>
    </message>
    <message>
        <source>There are no settings yet. “zentaro config init” writes a complete configuration to start from; or add a group “zentaro” first.</source>
        <translation>Non ci sono ancora impostazioni. «zentaro config init» scrive una configurazione completa da cui partire; oppure si aggiunga prima un gruppo «zentaro».</translation>
    </message>
    <message>
        <source>Search keys (Ctrl+F)</source>
        <translation>Cerca chiavi (Ctrl+F)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Apri…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Salva &amp;con nome…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Strumenti</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Add &amp;Setting</source>
        <translation>Aggiungi im&amp;postazione</translation>
    </message>
    <message>
        <source>Add &amp;Group</source>
        <translation>Aggiungi &amp;gruppo</translation>
    </message>
    <message>
        <source>Change &amp;Value</source>
        <translation>Modifica &amp;valore</translation>
    </message>
    <message>
        <source>Switch &amp;On or Off</source>
        <translation>Accen&amp;di o spegni</translation>
    </message>
    <message>
        <source>Set &amp;Everywhere</source>
        <translation>Imposta &amp;ovunque</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Rim&amp;uovi</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Trova</translation>
    </message>
    <message>
        <source>&amp;Next Finding</source>
        <translation>Problema &amp;successivo</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Carta</translation>
    </message>
    <message>
        <source>Open a &amp;Print Request…</source>
        <translation>Apri una &amp;richiesta di stampa…</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ri&amp;duci</translation>
    </message>
    <message>
        <source>Ren&amp;ame</source>
        <translation>Ri&amp;nomina</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>The ticket that carries an order to where it is prepared: quantities and names</source>
        <translation>La comanda che porta l’ordine dove si prepara: quantità e nomi</translation>
    </message>
    <message>
        <source>The pre-bill: items with prices</source>
        <translation>Il preconto: articoli con prezzi</translation>
    </message>
    <message>
        <source>The receipt, one line per item</source>
        <translation>La ricevuta, una riga per articolo</translation>
    </message>
    <message>
        <source>The invoice, one line per item</source>
        <translation>La fattura, una riga per articolo</translation>
    </message>
    <message>
        <source>The delivery note: its items are printed as on a ticket</source>
        <translation>La bolla di consegna: gli articoli come in una comanda</translation>
    </message>
    <message>
        <source>The fiscal receipt: a command line per item for the fiscal printer</source>
        <translation>Lo scontrino fiscale: un comando per articolo per la stampante fiscale</translation>
    </message>
    <message>
        <source>An order in summary: it prints nothing</source>
        <translation>Un ordine in sintesi: non stampa nulla</translation>
    </message>
    <message>
        <source>The receipt, one line per type of item</source>
        <translation>La ricevuta, una riga per tipo di articolo</translation>
    </message>
    <message>
        <source>The invoice, one line per type of item</source>
        <translation>La fattura, una riga per tipo di articolo</translation>
    </message>
    <message>
        <source>The fiscal receipt, one command line per type of item</source>
        <translation>Lo scontrino fiscale, un comando per tipo di articolo</translation>
    </message>
    <message>
        <source>The summary of a period</source>
        <translation>Il riepilogo di un periodo</translation>
    </message>
    <message>
        <source>The items sold in a period</source>
        <translation>Il venduto di un periodo</translation>
    </message>
    <message>
        <source>A customer&apos;s statement of account</source>
        <translation>L’estratto conto di un cliente</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>the file begins with a byte order mark, which becomes part of its first name</source>
        <translation>il file comincia con un segno d’ordine dei byte, che diventa parte del primo nome</translation>
    </message>
    <message>
        <source>no `{` follows the `:` of the group %1: the rest of the file is skipped</source>
        <translation>nessuna `{` segue i `:` del gruppo %1: il resto del file viene saltato</translation>
    </message>
    <message>
        <source>no `{` of its own follows the `:` of the group %1: it takes that of line %2, and all between is lost: %3</source>
        <translation>nessuna `{` propria segue i `:` del gruppo %1: prende quella della riga %2, e tutto ciò che sta in mezzo si perde: %3</translation>
    </message>
    <message>
        <source>lost between `:` and `{`: %1</source>
        <translation>perso tra `:` e `{`: %1</translation>
    </message>
    <message>
        <source>a NUL byte ends the value of %1</source>
        <translation>un byte NUL termina il valore di %1</translation>
    </message>
    <message>
        <source>no setting, and lost: %1</source>
        <translation>nessuna impostazione, e perso: %1</translation>
    </message>
    <message>
        <source>this `}` closes no group</source>
        <translation>questa `}` non chiude alcun gruppo</translation>
    </message>
    <message>
        <source>this `}` closes no group: reading ends here, and the rest of the file is lost: %1</source>
        <translation>questa `}` non chiude alcun gruppo: la lettura finisce qui, e il resto del file si perde: %1</translation>
    </message>
    <message>
        <source>no `;` follows the `}` of the group %1: all up to the next one is lost: %2</source>
        <translation>nessun `;` segue la `}` del gruppo %1: tutto fino al prossimo si perde: %2</translation>
    </message>
    <message>
        <source>no `;` follows the `}` of the group %1</source>
        <translation>nessun `;` segue la `}` del gruppo %1</translation>
    </message>
    <message>
        <source>the end of the file is lost: %1</source>
        <translation>la fine del file si perde: %1</translation>
    </message>
    <message>
        <source>the group %1 is not closed</source>
        <translation>il gruppo %1 non è chiuso</translation>
    </message>
    <message>
        <source>group</source>
        <translation>gruppo</translation>
    </message>
    <message>
        <source>key</source>
        <translation>chiave</translation>
    </message>
    <message>
        <source>a NUL byte ends the name of the %1 %2</source>
        <translation>un byte NUL termina il nome %2 (%1)</translation>
    </message>
    <message>
        <source>a `;` too many became part of the %1 %2</source>
        <translation>un `;` di troppo è diventato parte del nome %2 (%1)</translation>
    </message>
    <message>
        <source>%1 became part of the %2 %3: %4</source>
        <translation>%1 è diventato parte del nome %3 (%2): %4</translation>
    </message>
    <message>
        <source>there are no comments</source>
        <translation>i commenti non esistono</translation>
    </message>
    <message>
        <source>it is neither `key = value;` nor `group : {`</source>
        <translation>non è né `chiave = valore;` né `gruppo : {`</translation>
    </message>
    <message>
        <source>%1 is read as a %2: there are no comments</source>
        <translation>%1 è letto come nome (%2): i commenti non esistono</translation>
    </message>
    <message>
        <source>a `{` became part of the %1 %2: the `:` before it is missing</source>
        <translation>una `{` è diventata parte del nome %2 (%1): mancano i `:` che la precedono</translation>
    </message>
    <message>
        <source>no `;` ends the value of %1: it runs to the end of the file</source>
        <translation>nessun `;` termina il valore di %1: arriva fino alla fine del file</translation>
    </message>
    <message>
        <source>the quoted value of %1 goes on to line %2</source>
        <translation>il valore di %1 tra virgolette prosegue fino alla riga %2</translation>
    </message>
    <message>
        <source>no `;` ends the value of %1 on its line: it runs on to line %2 and takes in %3</source>
        <translation>nessun `;` termina il valore di %1 sulla sua riga: prosegue fino alla riga %2 e comprende %3</translation>
    </message>
    <message>
        <source>double quotes inside a value are lost: %1 is %2</source>
        <translation>le virgolette dentro un valore si perdono: %1 è %2</translation>
    </message>
    <message>
        <source>nothing is escaped, and it breaks the file</source>
        <translation>nulla viene protetto, e il file ne è rotto</translation>
    </message>
    <message>
        <source>it breaks what is written around it</source>
        <translation>rompe ciò che gli è scritto intorno</translation>
    </message>
    <message>
        <source>it is read back as %1</source>
        <translation>viene riletto come %1</translation>
    </message>
    <message>
        <source>the name %1: %2</source>
        <translation>il nome %1: %2</translation>
    </message>
    <message>
        <source>everything: the setting %1 outside any group makes a file that is no XML</source>
        <translation>tutto: l’impostazione %1 fuori da ogni gruppo dà un file che non è XML</translation>
    </message>
    <message>
        <source>the value of %1: %2</source>
        <translation>il valore di %1: %2</translation>
    </message>
    <message>
        <source>the value %1 of %2: the key stands there twice</source>
        <translation>il valore %1 di %2: la chiave vi sta due volte</translation>
    </message>
    <message>
        <source>the group %1, which is empty</source>
        <translation>il gruppo %1, che è vuoto</translation>
    </message>
    <message>
        <source>the group %1 with all it holds: only the first top-level group is written</source>
        <translation>il gruppo %1 con tutto ciò che contiene: si scrive solo il primo gruppo del livello superiore</translation>
    </message>
    <message>
        <source>text that is no setting: %1</source>
        <translation>testo che non è un’impostazione: %1</translation>
    </message>
    <message>
        <source>groups nest more than %1 deep</source>
        <translation>i gruppi sono annidati oltre %1 livelli</translation>
    </message>
    <message>
        <source>nothing of the file is read: %1</source>
        <translation>del file non si legge nulla: %1</translation>
    </message>
    <message>
        <source>not well-formed, nothing of the file is read: %1</source>
        <translation>non ben formato, del file non si legge nulla: %1</translation>
    </message>
    <message>
        <source>the file has no group: every setting is empty</source>
        <translation>il file non ha alcun gruppo: ogni impostazione è vuota</translation>
    </message>
    <message>
        <source>the group %1 is empty and counts for nothing</source>
        <translation>il gruppo %1 è vuoto e non conta nulla</translation>
    </message>
    <message>
        <source>the group %1 stands here again: of a key in both, the first value that is not empty counts</source>
        <translation>il gruppo %1 sta qui di nuovo: di una chiave in entrambi conta il primo valore non vuoto</translation>
    </message>
    <message>
        <source>nothing reads the group %1</source>
        <translation>nulla legge il gruppo %1</translation>
    </message>
    <message>
        <source>nothing in the group %1 is ever found: only the first top-level group is looked at</source>
        <translation>nel gruppo %1 non si trova mai nulla: si guarda solo il primo gruppo del livello superiore</translation>
    </message>
    <message>
        <source>no key is ever found: the first group is %1, not `%2`</source>
        <translation>non si trova mai alcuna chiave: il primo gruppo è %1, non `%2`</translation>
    </message>
    <message>
        <source>no lookup finds the key %1 outside any group</source>
        <translation>nessuna ricerca trova la chiave %1 fuori da ogni gruppo</translation>
    </message>
    <message>
        <source>the key %1 is overridden: it stands in this group again</source>
        <translation>la chiave %1 è soppiantata: sta un’altra volta in questo gruppo</translation>
    </message>
    <message>
        <source>no lookup finds the key %1: a `.` stands between the names of groups</source>
        <translation>nessuna ricerca trova la chiave %1: un `.` sta tra i nomi dei gruppi</translation>
    </message>
    <message>
        <source>nothing reads the key %1</source>
        <translation>nulla legge la chiave %1</translation>
    </message>
    <message>
        <source>no lookup finds this %1: an earlier group of the name has it</source>
        <translation>nessuna ricerca trova questo %1: lo ha un gruppo precedente dello stesso nome</translation>
    </message>
    <message>
        <source> (it belongs to `%1`)</source>
        <translation> (sta bene in `%1`)</translation>
    </message>
    <message>
        <source>%1 wants a whole number, not %2: 0 is read</source>
        <translation>%1 vuole un numero intero, non %2: si legge 0</translation>
    </message>
    <message>
        <source>%1 is %2, which is not between 0 and %3</source>
        <translation>%1 è %2, che non sta tra 0 e %3</translation>
    </message>
    <message>
        <source>%1 is %2, neither &quot;true&quot; nor &quot;false&quot;: it is off</source>
        <translation>%1 è %2, né &quot;true&quot; né &quot;false&quot;: è spento</translation>
    </message>
    <message>
        <source>%1 is %2: every line is logged</source>
        <translation>%1 è %2: si registra ogni riga</translation>
    </message>
    <message>
        <source>%1 is %2: nothing is logged</source>
        <translation>%1 è %2: non si registra nulla</translation>
    </message>
    <message>
        <source>%1: quantity, price and total take %2 characters with what stands between them, the paper has %3: nothing is left for the description</source>
        <translation>%1: quantità, prezzo e totale occupano %2 caratteri con ciò che sta tra loro, la carta ne ha %3: alla descrizione non resta nulla</translation>
    </message>
    <message>
        <source>there is no language file %1</source>
        <translation>il file di lingua %1 non c’è</translation>
    </message>
    <message>
        <source>there is no language file %1: labels stay in English</source>
        <translation>il file di lingua %1 non c’è: le etichette restano in inglese</translation>
    </message>
    <message>
        <source>%1 more like this</source>
        <translation>altri %1 come questo</translation>
    </message>
    <message>
        <source> (did you mean `%1`?)</source>
        <translation> (s’intendeva `%1`?)</translation>
    </message>
    <message>
        <source>without its line end</source>
        <translation>senza fine riga</translation>
    </message>
    <message>
        <source>ends with a carriage return</source>
        <translation>termina con un ritorno carrello</translation>
    </message>
    <message>
        <source>without its carriage return</source>
        <translation>senza il ritorno carrello</translation>
    </message>
    <message>
        <source>fiscal</source>
        <translation>fiscale</translation>
    </message>
    <message>
        <source>closes what was not opened</source>
        <translation>chiude ciò che non era aperto</translation>
    </message>
    <message>
        <source>the section is not closed</source>
        <translation>la sezione non è chiusa</translation>
    </message>
    <message>
        <source>outside of a section</source>
        <translation>fuori da una sezione</translation>
    </message>
    <message>
        <source>a double quote ends the name early</source>
        <translation>le virgolette terminano prima il nome</translation>
    </message>
    <message>
        <source>quantity and price take digits and at most one point</source>
        <translation>quantità e prezzo vogliono cifre e al massimo un punto</translation>
    </message>
    <message>
        <source>the department is no number</source>
        <translation>il reparto non è un numero</translation>
    </message>
    <message>
        <source>empty line</source>
        <translation>riga vuota</translation>
    </message>
    <message>
        <source>ends at its first &quot;@</source>
        <translation>termina al primo &quot;@</translation>
    </message>
    <message>
        <source>without its opening quote</source>
        <translation>senza le virgolette iniziali</translation>
    </message>
    <message>
        <source>without its closing &quot;@</source>
        <translation>senza &quot;@ finale</translation>
    </message>
    <message>
        <source>not framed: a command to the printer</source>
        <translation>senza cornice: un comando alla stampante</translation>
    </message>
    <message>
        <source>there is no memory for the print file</source>
        <translation>non c&apos;è memoria per il file di stampa</translation>
    </message>
    <message>
        <source>more than %1 bytes would be printed</source>
        <translation>si stamperebbero più di %1 byte</translation>
    </message>
    <message>
        <source>line %1: the print run stops reading here</source>
        <translation>riga %1: la stampa smette di leggere qui</translation>
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
        <translation>Documento</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>It is not a print request.</source>
        <translation>Non è una richiesta di stampa.</translation>
    </message>
    <message>
        <source>No setting in the file shapes this line.</source>
        <translation>Nessuna impostazione del file dà forma a questa riga.</translation>
    </message>
    <message>
        <source>This line is shaped by: %1</source>
        <translation>A questa riga danno forma: %1</translation>
    </message>
    <message>
        <source>It has more than 1 MiB.</source>
        <translation>Supera 1 MiB.</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>The folder of the translations of the printed labels.</source>
        <translation>La cartella delle traduzioni delle etichette stampate.</translation>
    </message>
    <message>
        <source>Which translation: / for that of the system&apos;s language, or a name that is put right behind the folder&apos;s.</source>
        <translation>Quale traduzione: / per quella nella lingua del sistema, o un nome che si aggiunge subito dopo quello della cartella.</translation>
    </message>
    <message>
        <source>Lines below this level are not logged: DEBUG, INFO, WARNING, ERROR or FATAL, in any letter case. Any other text means the default.</source>
        <translation>Le righe sotto questo livello non vanno nel registro: DEBUG, INFO, WARNING, ERROR o FATAL, maiuscole o minuscole. Ogni altro testo vale il predefinito.</translation>
    </message>
    <message>
        <source>The folder of the log file; it has to exist.</source>
        <translation>La cartella del file di registro; deve esistere.</translation>
    </message>
    <message>
        <source>The name of the log file in its folder.</source>
        <translation>Il nome del file di registro nella sua cartella.</translation>
    </message>
    <message>
        <source>APPEND goes on in the log file, OVERWRITE empties it first, in any letter case. With any other text nothing is logged.</source>
        <translation>APPEND continua il file di registro, OVERWRITE prima lo svuota, maiuscole o minuscole. Con ogni altro testo non si registra nulla.</translation>
    </message>
    <message>
        <source>The name of the database.</source>
        <translation>Il nome della base di dati.</translation>
    </message>
    <message>
        <source>The database&apos;s user.</source>
        <translation>L’utente della base di dati.</translation>
    </message>
    <message>
        <source>The user&apos;s password, which whoever may read this file can read.</source>
        <translation>La password dell’utente, che può leggere chiunque possa leggere questo file.</translation>
    </message>
    <message>
        <source>The database&apos;s server.</source>
        <translation>Il server della base di dati.</translation>
    </message>
    <message>
        <source>The folder of the suite&apos;s programs.</source>
        <translation>La cartella dei programmi della suite.</translation>
    </message>
    <message>
        <source>Characters of the quantity column.</source>
        <translation>Caratteri della colonna della quantità.</translation>
    </message>
    <message>
        <source>Characters of the unit price column; in a statement of account, of the amount.</source>
        <translation>Caratteri della colonna del prezzo unitario; in un estratto conto, dell’importo.</translation>
    </message>
    <message>
        <source>Characters of the column of line totals.</source>
        <translation>Caratteri della colonna dei totali di riga.</translation>
    </message>
    <message>
        <source>Characters in a line. The description gets what the other columns leave, and is cut to it. 0 means the default.</source>
        <translation>Caratteri in una riga. La descrizione prende ciò che le altre colonne lasciano, e vi viene tagliata. 0 vale il predefinito.</translation>
    </message>
    <message>
        <source>Nothing on this printer: kept for printers with pages.</source>
        <translation>Nulla su questa stampante: resta per le stampanti con pagine.</translation>
    </message>
    <message>
        <source>Nothing on this printer: kept for printers with styles.</source>
        <translation>Nulla su questa stampante: resta per le stampanti con stili.</translation>
    </message>
    <message>
        <source>Empty lines of the top margin, which printGeometry switches on.</source>
        <translation>Righe vuote del margine superiore, che printGeometry accende.</translation>
    </message>
    <message>
        <source>Characters that an item&apos;s name keeps in a fiscal receipt by item. 0 means the default.</source>
        <translation>Caratteri che il nome di un articolo conserva in uno scontrino fiscale per articolo. 0 vale il predefinito.</translation>
    </message>
    <message>
        <source>The copies that the suite&apos;s programs print of the document.</source>
        <translation>Le copie che i programmi della suite stampano del documento.</translation>
    </message>
    <message>
        <source>Prints the top margin, at the geometry element.</source>
        <translation>Stampa il margine superiore, all’elemento geometry.</translation>
    </message>
    <message>
        <source>Prints the lines of the headers element; the printer&apos;s name below them is printed always.</source>
        <translation>Stampa le righe dell’elemento headers; il nome della stampante sotto di esse si stampa sempre.</translation>
    </message>
    <message>
        <source>Nothing on this printer, which has no logo.</source>
        <translation>Nulla su questa stampante, che non ha logo.</translation>
    </message>
    <message>
        <source>Prints the company element.</source>
        <translation>Stampa l’elemento company.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s delivery address.</source>
        <translation>Stampa l’indirizzo di consegna del cliente.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s billing address.</source>
        <translation>Stampa l’indirizzo di fatturazione del cliente.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s telephone.</source>
        <translation>Stampa il telefono del cliente.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s date.</source>
        <translation>Stampa la data dell’ordine.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s time.</source>
        <translation>Stampa l’ora dell’ordine.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s table.</source>
        <translation>Stampa il tavolo dell’ordine.</translation>
    </message>
    <message>
        <source>Prints the customer element. Without it no other setting of the customer counts.</source>
        <translation>Stampa l’elemento customer. Senza, nessun’altra impostazione del cliente conta.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s license number.</source>
        <translation>Stampa la partita IVA del cliente.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s fiscal code.</source>
        <translation>Stampa il codice fiscale del cliente.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s credit.</source>
        <translation>Stampa il credito dell’ordine.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s waiter.</source>
        <translation>Stampa il cameriere dell’ordine.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s note.</source>
        <translation>Stampa la nota dell’ordine.</translation>
    </message>
    <message>
        <source>Nothing on this printer, which has no drawer.</source>
        <translation>Nulla su questa stampante, che non ha cassetto.</translation>
    </message>
</context>
<context>
    <name>SettingPane</name>
    <message>
        <source>Set Everywhere</source>
        <translation>Imposta ovunque</translation>
    </message>
    <message>
        <source>Gives every document that has this setting the same value.</source>
        <translation>Dà lo stesso valore a ogni documento che ha questa impostazione.</translation>
    </message>
    <message>
        <source>Nothing reads this key.</source>
        <translation>Nulla legge questa chiave.</translation>
    </message>
    <message>
        <source>0 to %1.</source>
        <translation>Da 0 a %1.</translation>
    </message>
    <message>
        <source>Unless set: %1.</source>
        <translation>Se non impostato: %1.</translation>
    </message>
    <message>
        <source>&amp;Value: on</source>
        <translation>&amp;Valore: acceso</translation>
    </message>
    <message>
        <source>Choose a folder (F4)</source>
        <translation>Scegli una cartella (F4)</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Scegli una cartella</translation>
    </message>
    <message>
        <source>as the system (/)</source>
        <translation>come il sistema (/)</translation>
    </message>
</context>
</TS>
