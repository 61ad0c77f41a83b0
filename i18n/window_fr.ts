<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ConfigEditor</name>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>%1 cannot be edited.</source>
        <translation>%1 ne peut pas être modifié.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>It has more than 64 MiB.</source>
        <translation>Il dépasse 64 Mio.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Its groups stand too deep within each other.</source>
        <translation>Ses groupes sont imbriqués trop profondément.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Open a Print Request</source>
        <translation>Ouvrir une demande d’impression</translation>
    </message>
    <message>
        <source>%1 cannot be shown.</source>
        <translation>%1 ne peut pas être affiché.</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>%1 n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>%1 has changed since it was opened.</source>
        <translation>%1 a changé depuis son ouverture.</translation>
    </message>
    <message>
        <source>Saving replaces it with what this window shows.</source>
        <translation>L’enregistrement le remplace par ce que montre cette fenêtre.</translation>
    </message>
    <message>
        <source>The file that is written will lack something:</source>
        <translation>Il manquera quelque chose au fichier écrit :</translation>
    </message>
    <message>
        <source>%1 has changes that are not saved.</source>
        <translation>%1 a des modifications non enregistrées.</translation>
    </message>
    <message>
        <source>saving loses %1</source>
        <translation>l’enregistrement perd %1</translation>
    </message>
    <message>
        <source>In the file, line %1: %2</source>
        <translation>Dans le fichier, ligne %1 : %2</translation>
    </message>
    <message>
        <source>Nothing wrong</source>
        <translation>Aucun problème</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>Problèmes : %1</translation>
    </message>
    <message>
        <source>This file cannot be written: %1. “Save As” writes another.</source>
        <translation>Ce fichier ne peut pas être écrit : %1. « Enregistrer sous » en écrit un autre.</translation>
    </message>
    <message>
        <source>There are no settings yet. “zentaro config init” writes a complete configuration to start from; or add a group “zentaro” first.</source>
        <translation>Il n’y a pas encore de réglages. « zentaro config init » écrit une configuration complète pour commencer ; ou ajoutez d’abord un groupe « zentaro ».</translation>
    </message>
    <message>
        <source>Search keys (Ctrl+F)</source>
        <translation>Chercher des clés (Ctrl+F)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Add &amp;Setting</source>
        <translation>Ajouter un ré&amp;glage</translation>
    </message>
    <message>
        <source>Add &amp;Group</source>
        <translation>Ajouter un group&amp;e</translation>
    </message>
    <message>
        <source>Change &amp;Value</source>
        <translation>Changer la &amp;valeur</translation>
    </message>
    <message>
        <source>Switch &amp;On or Off</source>
        <translation>Activer &amp;ou désactiver</translation>
    </message>
    <message>
        <source>Set &amp;Everywhere</source>
        <translation>Régler &amp;partout</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Chercher</translation>
    </message>
    <message>
        <source>&amp;Next Finding</source>
        <translation>Problème su&amp;ivant</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Papier</translation>
    </message>
    <message>
        <source>Open a &amp;Print Request…</source>
        <translation>Ouvrir une &amp;demande d’impression…</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>Ren&amp;ame</source>
        <translation>Re&amp;nommer</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>The ticket that carries an order to where it is prepared: quantities and names</source>
        <translation>Le bon qui porte une commande là où elle est préparée : quantités et noms</translation>
    </message>
    <message>
        <source>The pre-bill: items with prices</source>
        <translation>La note provisoire : articles avec prix</translation>
    </message>
    <message>
        <source>The receipt, one line per item</source>
        <translation>Le reçu, une ligne par article</translation>
    </message>
    <message>
        <source>The invoice, one line per item</source>
        <translation>La facture, une ligne par article</translation>
    </message>
    <message>
        <source>The delivery note: its items are printed as on a ticket</source>
        <translation>Le bon de livraison : les articles comme sur un bon</translation>
    </message>
    <message>
        <source>The fiscal receipt: a command line per item for the fiscal printer</source>
        <translation>Le ticket fiscal : une commande par article pour l’imprimante fiscale</translation>
    </message>
    <message>
        <source>An order in summary: it prints nothing</source>
        <translation>Une commande en résumé : n’imprime rien</translation>
    </message>
    <message>
        <source>The receipt, one line per type of item</source>
        <translation>Le reçu, une ligne par type d’article</translation>
    </message>
    <message>
        <source>The invoice, one line per type of item</source>
        <translation>La facture, une ligne par type d’article</translation>
    </message>
    <message>
        <source>The fiscal receipt, one command line per type of item</source>
        <translation>Le ticket fiscal, une commande par type d’article</translation>
    </message>
    <message>
        <source>The summary of a period</source>
        <translation>Le résumé d’une période</translation>
    </message>
    <message>
        <source>The items sold in a period</source>
        <translation>Les articles vendus sur une période</translation>
    </message>
    <message>
        <source>A customer&apos;s statement of account</source>
        <translation>Le relevé de compte d’un client</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>the file begins with a byte order mark, which becomes part of its first name</source>
        <translation>le fichier commence par une marque d’ordre des octets, qui devient une partie de son premier nom</translation>
    </message>
    <message>
        <source>no `{` follows the `:` of the group %1: the rest of the file is skipped</source>
        <translation>aucune `{` ne suit le `:` du groupe %1 : le reste du fichier est sauté</translation>
    </message>
    <message>
        <source>no `{` of its own follows the `:` of the group %1: it takes that of line %2, and all between is lost: %3</source>
        <translation>aucune `{` propre ne suit le `:` du groupe %1 : il prend celle de la ligne %2, et tout ce qui est entre les deux est perdu : %3</translation>
    </message>
    <message>
        <source>lost between `:` and `{`: %1</source>
        <translation>perdu entre `:` et `{` : %1</translation>
    </message>
    <message>
        <source>a NUL byte ends the value of %1</source>
        <translation>un octet NUL termine la valeur de %1</translation>
    </message>
    <message>
        <source>no setting, and lost: %1</source>
        <translation>ce n’est pas un réglage, et c’est perdu : %1</translation>
    </message>
    <message>
        <source>this `}` closes no group</source>
        <translation>cette `}` ne ferme aucun groupe</translation>
    </message>
    <message>
        <source>this `}` closes no group: reading ends here, and the rest of the file is lost: %1</source>
        <translation>cette `}` ne ferme aucun groupe : la lecture s’arrête ici, et le reste du fichier est perdu : %1</translation>
    </message>
    <message>
        <source>no `;` follows the `}` of the group %1: all up to the next one is lost: %2</source>
        <translation>aucun `;` ne suit la `}` du groupe %1 : tout jusqu’au suivant est perdu : %2</translation>
    </message>
    <message>
        <source>no `;` follows the `}` of the group %1</source>
        <translation>aucun `;` ne suit la `}` du groupe %1</translation>
    </message>
    <message>
        <source>the end of the file is lost: %1</source>
        <translation>la fin du fichier est perdue : %1</translation>
    </message>
    <message>
        <source>the group %1 is not closed</source>
        <translation>le groupe %1 n’est pas fermé</translation>
    </message>
    <message>
        <source>group</source>
        <translation>groupe</translation>
    </message>
    <message>
        <source>key</source>
        <translation>clé</translation>
    </message>
    <message>
        <source>a NUL byte ends the name of the %1 %2</source>
        <translation>un octet NUL termine le nom %2 (%1)</translation>
    </message>
    <message>
        <source>a `;` too many became part of the %1 %2</source>
        <translation>un `;` de trop est devenu une partie du nom %2 (%1)</translation>
    </message>
    <message>
        <source>%1 became part of the %2 %3: %4</source>
        <translation>%1 est devenu une partie du nom %3 (%2) : %4</translation>
    </message>
    <message>
        <source>there are no comments</source>
        <translation>il n’y a pas de commentaires</translation>
    </message>
    <message>
        <source>it is neither `key = value;` nor `group : {`</source>
        <translation>ce n’est ni `clé = valeur;` ni `groupe : {`</translation>
    </message>
    <message>
        <source>%1 is read as a %2: there are no comments</source>
        <translation>%1 est lu comme un nom (%2) : il n’y a pas de commentaires</translation>
    </message>
    <message>
        <source>a `{` became part of the %1 %2: the `:` before it is missing</source>
        <translation>une `{` est devenue une partie du nom %2 (%1) : le `:` qui la précède manque</translation>
    </message>
    <message>
        <source>no `;` ends the value of %1: it runs to the end of the file</source>
        <translation>aucun `;` ne termine la valeur de %1 : elle va jusqu’à la fin du fichier</translation>
    </message>
    <message>
        <source>the quoted value of %1 goes on to line %2</source>
        <translation>la valeur de %1 entre guillemets continue jusqu’à la ligne %2</translation>
    </message>
    <message>
        <source>no `;` ends the value of %1 on its line: it runs on to line %2 and takes in %3</source>
        <translation>aucun `;` ne termine la valeur de %1 sur sa ligne : elle continue jusqu’à la ligne %2 et prend %3</translation>
    </message>
    <message>
        <source>double quotes inside a value are lost: %1 is %2</source>
        <translation>les guillemets à l’intérieur d’une valeur sont perdus : %1 est %2</translation>
    </message>
    <message>
        <source>nothing is escaped, and it breaks the file</source>
        <translation>rien n’est échappé, et le fichier en est cassé</translation>
    </message>
    <message>
        <source>it breaks what is written around it</source>
        <translation>cela casse ce qui est écrit autour</translation>
    </message>
    <message>
        <source>it is read back as %1</source>
        <translation>c’est relu comme %1</translation>
    </message>
    <message>
        <source>the name %1: %2</source>
        <translation>le nom %1 : %2</translation>
    </message>
    <message>
        <source>everything: the setting %1 outside any group makes a file that is no XML</source>
        <translation>tout : le réglage %1 hors de tout groupe donne un fichier qui n’est pas du XML</translation>
    </message>
    <message>
        <source>the value of %1: %2</source>
        <translation>la valeur de %1 : %2</translation>
    </message>
    <message>
        <source>the value %1 of %2: the key stands there twice</source>
        <translation>la valeur %1 de %2 : la clé y est deux fois</translation>
    </message>
    <message>
        <source>the group %1, which is empty</source>
        <translation>le groupe %1, qui est vide</translation>
    </message>
    <message>
        <source>the group %1 with all it holds: only the first top-level group is written</source>
        <translation>le groupe %1 avec tout ce qu’il contient : seul le premier groupe du niveau supérieur est écrit</translation>
    </message>
    <message>
        <source>text that is no setting: %1</source>
        <translation>du texte qui n’est pas un réglage : %1</translation>
    </message>
    <message>
        <source>groups nest more than %1 deep</source>
        <translation>les groupes sont imbriqués sur plus de %1 niveaux</translation>
    </message>
    <message>
        <source>nothing of the file is read: %1</source>
        <translation>rien du fichier n’est lu : %1</translation>
    </message>
    <message>
        <source>not well-formed, nothing of the file is read: %1</source>
        <translation>mal formé, rien du fichier n’est lu : %1</translation>
    </message>
    <message>
        <source>the file has no group: every setting is empty</source>
        <translation>le fichier n’a aucun groupe : chaque réglage est vide</translation>
    </message>
    <message>
        <source>the group %1 is empty and counts for nothing</source>
        <translation>le groupe %1 est vide et ne compte pas</translation>
    </message>
    <message>
        <source>the group %1 stands here again: of a key in both, the first value that is not empty counts</source>
        <translation>le groupe %1 est ici une nouvelle fois : d’une clé dans les deux compte la première valeur qui n’est pas vide</translation>
    </message>
    <message>
        <source>nothing reads the group %1</source>
        <translation>rien ne lit le groupe %1</translation>
    </message>
    <message>
        <source>nothing in the group %1 is ever found: only the first top-level group is looked at</source>
        <translation>rien dans le groupe %1 n’est jamais trouvé : seul le premier groupe du niveau supérieur est regardé</translation>
    </message>
    <message>
        <source>no key is ever found: the first group is %1, not `%2`</source>
        <translation>aucune clé n’est jamais trouvée : le premier groupe est %1, pas `%2`</translation>
    </message>
    <message>
        <source>no lookup finds the key %1 outside any group</source>
        <translation>aucune recherche ne trouve la clé %1 hors de tout groupe</translation>
    </message>
    <message>
        <source>the key %1 is overridden: it stands in this group again</source>
        <translation>la clé %1 est remplacée : elle est encore une fois dans ce groupe</translation>
    </message>
    <message>
        <source>no lookup finds the key %1: a `.` stands between the names of groups</source>
        <translation>aucune recherche ne trouve la clé %1 : un `.` se met entre les noms des groupes</translation>
    </message>
    <message>
        <source>nothing reads the key %1</source>
        <translation>rien ne lit la clé %1</translation>
    </message>
    <message>
        <source>no lookup finds this %1: an earlier group of the name has it</source>
        <translation>aucune recherche ne trouve ce %1 : un groupe précédent du même nom l’a</translation>
    </message>
    <message>
        <source> (it belongs to `%1`)</source>
        <translation> (elle appartient à `%1`)</translation>
    </message>
    <message>
        <source>%1 wants a whole number, not %2: 0 is read</source>
        <translation>%1 veut un nombre entier, pas %2 : 0 est lu</translation>
    </message>
    <message>
        <source>%1 is %2, which is not between 0 and %3</source>
        <translation>%1 est %2, ce qui n’est pas entre 0 et %3</translation>
    </message>
    <message>
        <source>%1 is %2, neither &quot;true&quot; nor &quot;false&quot;: it is off</source>
        <translation>%1 est %2, ni &quot;true&quot; ni &quot;false&quot; : c’est désactivé</translation>
    </message>
    <message>
        <source>%1 is %2: every line is logged</source>
        <translation>%1 est %2 : chaque ligne est journalisée</translation>
    </message>
    <message>
        <source>%1 is %2: nothing is logged</source>
        <translation>%1 est %2 : rien n’est journalisé</translation>
    </message>
    <message>
        <source>%1: quantity, price and total take %2 characters with what stands between them, the paper has %3: nothing is left for the description</source>
        <translation>%1 : quantité, prix et total prennent %2 caractères avec ce qui est entre eux, le papier en a %3 : il ne reste rien pour la désignation</translation>
    </message>
    <message>
        <source>there is no language file %1</source>
        <translation>il n’y a pas de fichier de langue %1</translation>
    </message>
    <message>
        <source>there is no language file %1: labels stay in English</source>
        <translation>il n’y a pas de fichier de langue %1 : les libellés restent en anglais</translation>
    </message>
    <message>
        <source>%1 more like this</source>
        <translation>%1 autres de ce genre</translation>
    </message>
    <message>
        <source> (did you mean `%1`?)</source>
        <translation> (vouliez-vous dire `%1` ?)</translation>
    </message>
    <message>
        <source>without its line end</source>
        <translation>sans fin de ligne</translation>
    </message>
    <message>
        <source>ends with a carriage return</source>
        <translation>se termine par un retour chariot</translation>
    </message>
    <message>
        <source>without its carriage return</source>
        <translation>sans retour chariot</translation>
    </message>
    <message>
        <source>fiscal</source>
        <translation>fiscal</translation>
    </message>
    <message>
        <source>closes what was not opened</source>
        <translation>ferme ce qui n&apos;était pas ouvert</translation>
    </message>
    <message>
        <source>the section is not closed</source>
        <translation>la section n&apos;est pas fermée</translation>
    </message>
    <message>
        <source>outside of a section</source>
        <translation>hors d&apos;une section</translation>
    </message>
    <message>
        <source>a double quote ends the name early</source>
        <translation>un guillemet termine le nom trop tôt</translation>
    </message>
    <message>
        <source>quantity and price take digits and at most one point</source>
        <translation>quantité et prix prennent des chiffres et au plus un point</translation>
    </message>
    <message>
        <source>the department is no number</source>
        <translation>le rayon n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>empty line</source>
        <translation>ligne vide</translation>
    </message>
    <message>
        <source>ends at its first &quot;@</source>
        <translation>se termine au premier &quot;@</translation>
    </message>
    <message>
        <source>without its opening quote</source>
        <translation>sans guillemet ouvrant</translation>
    </message>
    <message>
        <source>without its closing &quot;@</source>
        <translation>sans &quot;@ final</translation>
    </message>
    <message>
        <source>not framed: a command to the printer</source>
        <translation>sans cadre : une commande à l&apos;imprimante</translation>
    </message>
    <message>
        <source>there is no memory for the print file</source>
        <translation>il n&apos;y a pas de mémoire pour le fichier d&apos;impression</translation>
    </message>
    <message>
        <source>more than %1 bytes would be printed</source>
        <translation>plus de %1 octets seraient imprimés</translation>
    </message>
    <message>
        <source>line %1: the print run stops reading here</source>
        <translation>ligne %1 : l&apos;impression cesse de lire ici</translation>
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
        <translation>Document</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>It is not a print request.</source>
        <translation>Ce n’est pas une demande d’impression.</translation>
    </message>
    <message>
        <source>No setting in the file shapes this line.</source>
        <translation>Aucun réglage du fichier ne façonne cette ligne.</translation>
    </message>
    <message>
        <source>This line is shaped by: %1</source>
        <translation>Cette ligne est façonnée par : %1</translation>
    </message>
    <message>
        <source>It has more than 1 MiB.</source>
        <translation>Il dépasse 1 Mio.</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>The folder of the translations of the printed labels.</source>
        <translation>Le dossier des traductions des libellés imprimés.</translation>
    </message>
    <message>
        <source>Which translation: / for that of the system&apos;s language, or a name that is put right behind the folder&apos;s.</source>
        <translation>Quelle traduction : / pour celle de la langue du système, ou un nom qui est ajouté juste derrière celui du dossier.</translation>
    </message>
    <message>
        <source>Lines below this level are not logged: DEBUG, INFO, WARNING, ERROR or FATAL, in any letter case. Any other text means the default.</source>
        <translation>Les lignes sous ce niveau ne sont pas journalisées : DEBUG, INFO, WARNING, ERROR ou FATAL, en majuscules ou minuscules. Tout autre texte vaut la valeur par défaut.</translation>
    </message>
    <message>
        <source>The folder of the log file; it has to exist.</source>
        <translation>Le dossier du journal ; il doit exister.</translation>
    </message>
    <message>
        <source>The name of the log file in its folder.</source>
        <translation>Le nom du journal dans son dossier.</translation>
    </message>
    <message>
        <source>APPEND goes on in the log file, OVERWRITE empties it first, in any letter case. With any other text nothing is logged.</source>
        <translation>APPEND continue le journal, OVERWRITE le vide d’abord, en majuscules ou minuscules. Avec tout autre texte rien n’est journalisé.</translation>
    </message>
    <message>
        <source>The name of the database.</source>
        <translation>Le nom de la base de données.</translation>
    </message>
    <message>
        <source>The database&apos;s user.</source>
        <translation>L’utilisateur de la base de données.</translation>
    </message>
    <message>
        <source>The user&apos;s password, which whoever may read this file can read.</source>
        <translation>Le mot de passe de l’utilisateur, lisible par quiconque peut lire ce fichier.</translation>
    </message>
    <message>
        <source>The database&apos;s server.</source>
        <translation>Le serveur de la base de données.</translation>
    </message>
    <message>
        <source>The folder of the suite&apos;s programs.</source>
        <translation>Le dossier des programmes de la suite.</translation>
    </message>
    <message>
        <source>Characters of the quantity column.</source>
        <translation>Caractères de la colonne de la quantité.</translation>
    </message>
    <message>
        <source>Characters of the unit price column; in a statement of account, of the amount.</source>
        <translation>Caractères de la colonne du prix unitaire ; dans un relevé de compte, du montant.</translation>
    </message>
    <message>
        <source>Characters of the column of line totals.</source>
        <translation>Caractères de la colonne des totaux de ligne.</translation>
    </message>
    <message>
        <source>Characters in a line. The description gets what the other columns leave, and is cut to it. 0 means the default.</source>
        <translation>Caractères dans une ligne. La description prend ce que laissent les autres colonnes, et y est coupée. 0 vaut la valeur par défaut.</translation>
    </message>
    <message>
        <source>Nothing on this printer: kept for printers with pages.</source>
        <translation>Rien sur cette imprimante : gardé pour les imprimantes à pages.</translation>
    </message>
    <message>
        <source>Nothing on this printer: kept for printers with styles.</source>
        <translation>Rien sur cette imprimante : gardé pour les imprimantes à styles.</translation>
    </message>
    <message>
        <source>Empty lines of the top margin, which printGeometry switches on.</source>
        <translation>Lignes vides de la marge du haut, que printGeometry active.</translation>
    </message>
    <message>
        <source>Characters that an item&apos;s name keeps in a fiscal receipt by item. 0 means the default.</source>
        <translation>Caractères que garde le nom d’un article dans un ticket fiscal par article. 0 vaut la valeur par défaut.</translation>
    </message>
    <message>
        <source>The copies that the suite&apos;s programs print of the document.</source>
        <translation>Les exemplaires que les programmes de la suite impriment du document.</translation>
    </message>
    <message>
        <source>Prints the top margin, at the geometry element.</source>
        <translation>Imprime la marge du haut, à l’élément geometry.</translation>
    </message>
    <message>
        <source>Prints the lines of the headers element; the printer&apos;s name below them is printed always.</source>
        <translation>Imprime les lignes de l’élément headers ; le nom de l’imprimante dessous est toujours imprimé.</translation>
    </message>
    <message>
        <source>Nothing on this printer, which has no logo.</source>
        <translation>Rien sur cette imprimante, qui n’a pas de logo.</translation>
    </message>
    <message>
        <source>Prints the company element.</source>
        <translation>Imprime l’élément company.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s delivery address.</source>
        <translation>Imprime l’adresse de livraison du client.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s billing address.</source>
        <translation>Imprime l’adresse de facturation du client.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s telephone.</source>
        <translation>Imprime le téléphone du client.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s date.</source>
        <translation>Imprime la date de la commande.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s time.</source>
        <translation>Imprime l’heure de la commande.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s table.</source>
        <translation>Imprime la table de la commande.</translation>
    </message>
    <message>
        <source>Prints the customer element. Without it no other setting of the customer counts.</source>
        <translation>Imprime l’élément customer. Sans lui, aucun autre réglage du client ne compte.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s license number.</source>
        <translation>Imprime le numéro d’immatriculation du client.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s fiscal code.</source>
        <translation>Imprime le code fiscal du client.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s credit.</source>
        <translation>Imprime le crédit de la commande.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s waiter.</source>
        <translation>Imprime le serveur de la commande.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s note.</source>
        <translation>Imprime la note de la commande.</translation>
    </message>
    <message>
        <source>Nothing on this printer, which has no drawer.</source>
        <translation>Rien sur cette imprimante, qui n’a pas de tiroir.</translation>
    </message>
</context>
<context>
    <name>SettingPane</name>
    <message>
        <source>Set Everywhere</source>
        <translation>Régler partout</translation>
    </message>
    <message>
        <source>Gives every document that has this setting the same value.</source>
        <translation>Donne la même valeur à chaque document qui a ce réglage.</translation>
    </message>
    <message>
        <source>Nothing reads this key.</source>
        <translation>Rien ne lit cette clé.</translation>
    </message>
    <message>
        <source>0 to %1.</source>
        <translation>De 0 à %1.</translation>
    </message>
    <message>
        <source>Unless set: %1.</source>
        <translation>Sans réglage : %1.</translation>
    </message>
    <message>
        <source>&amp;Value: on</source>
        <translation>&amp;Valeur : activé</translation>
    </message>
    <message>
        <source>Choose a folder (F4)</source>
        <translation>Choisir un dossier (F4)</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>as the system (/)</source>
        <translation>comme le système (/)</translation>
    </message>
</context>
</TS>
