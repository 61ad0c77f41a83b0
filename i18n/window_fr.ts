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
        <source>Characters that an item&apos;s name keeps in a fiscal receipt by item. 0 means the default, a negative number cuts nothing.</source>
        <translation>Caractères que garde le nom d’un article dans un ticket fiscal par article. 0 vaut la valeur par défaut, un nombre négatif ne coupe rien.</translation>
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
