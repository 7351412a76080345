<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BRING_BACK_DIALOG</name>
    <message>
        <source>Under &amp;another name:</source>
        <translation>Sous un autre &amp;nom&#xa0;:</translation>
    </message>
    <message>
        <source>Bring Back</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nouveau nom</translation>
    </message>
    <message>
        <source>The template &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>Le modèle «&#xa0;%1&#xa0;» redevient ce qu’il était jusqu’au %2 (état %3).</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>Le composant «&#xa0;%1&#xa0;» redevient ce qu’il était jusqu’au %2 (état %3).</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Replace it; it goes into the history</source>
        <translation>Re&amp;mplacer&#xa0;; l’actuel passe dans l’historique</translation>
    </message>
    <message>
        <source>&amp;Under its name</source>
        <translation>&amp;Sous son nom</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2.</source>
        <translation>Le «&#xa0;%1&#xa0;» actuel a été enregistré le %2.</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2 by %3.</source>
        <translation>Le «&#xa0;%1&#xa0;» actuel a été enregistré le %2 par %3.</translation>
    </message>
    <message>
        <source>A device has this name now. A template cannot have the name of a device: give it another one.</source>
        <translation>Un composant porte maintenant ce nom. Un modèle ne peut pas porter le nom d’un composant&#xa0;: donnez-lui-en un autre.</translation>
    </message>
    <message>
        <source>A template has this name now. A device cannot have the name of a template: give it another one.</source>
        <translation>Un modèle porte maintenant ce nom. Un composant ne peut pas porter le nom d’un modèle&#xa0;: donnez-lui-en un autre.</translation>
    </message>
    <message>
        <source>Enter the new name.</source>
        <translation>Saisissez le nouveau nom.</translation>
    </message>
</context>
<context>
    <name>CHART_SAVER</name>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Document PDF (*.pdf)</translation>
    </message>
    <message>
        <source>SVG picture (*.svg)</source>
        <translation>Image SVG (*.svg)</translation>
    </message>
    <message>
        <source>Save Flow Charts</source>
        <translation>Enregistrer les organigrammes</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Le fichier %1 ne peut pas être écrit&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>COMPARE_DIALOG</name>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>There are no differences.</source>
        <translation>Il n’y a pas de différences.</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>Différences&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Only differences</source>
        <translation>Différences &amp;seulement</translation>
    </message>
    <message>
        <source>&amp;Previous Difference</source>
        <translation>Différence &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Next Difference</source>
        <translation>Différence s&amp;uivante</translation>
    </message>
    <message>
        <source>Copy as &amp;Diff</source>
        <translation>Copier comme &amp;diff</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>%1&#xa0;: «&#xa0;%2&#xa0;» et «&#xa0;%3&#xa0;»</translation>
    </message>
</context>
<context>
    <name>COMPARE_MODEL</name>
    <message>
        <source>Different</source>
        <translation>Différent</translation>
    </message>
    <message>
        <source>Only on the left</source>
        <translation>À gauche seulement</translation>
    </message>
    <message>
        <source>Only on the right</source>
        <translation>À droite seulement</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>Identique</translation>
    </message>
</context>
<context>
    <name>CONNECTION_PANEL</name>
    <message>
        <source>Emulated chip</source>
        <translation>Puce émulée</translation>
    </message>
    <message>
        <source>Network (serprog)</source>
        <translation>Réseau (serprog)</translation>
    </message>
    <message>
        <source>Serial line (serprog)</source>
        <translation>Liaison série (serprog)</translation>
    </message>
    <message>
        <source>De&amp;tect</source>
        <translation>Dé&amp;tecter</translation>
    </message>
    <message>
        <source>Co&amp;nnection:</source>
        <translation>Conne&amp;xion&#xa0;:</translation>
    </message>
    <message>
        <source>none: in memory</source>
        <translation>aucun&#xa0;: en mémoire</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>&amp;Keep contents in:</source>
        <translation>Ga&amp;rder le contenu dans&#xa0;:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port&#xa0;:</translation>
    </message>
    <message>
        <source>S&amp;erial line:</source>
        <translation>&amp;Liaison série&#xa0;:</translation>
    </message>
    <message>
        <source>Baud rate:</source>
        <translation>Débit (bauds)&#xa0;:</translation>
    </message>
    <message>
        <source>Contents of the Emulated Chip</source>
        <translation>Contenu de la puce émulée</translation>
    </message>
    <message>
        <source>The connection is not complete.</source>
        <translation>La connexion est incomplète.</translation>
    </message>
    <message>
        <source>the programmer&apos;s own</source>
        <translation>celle du programmateur</translation>
    </message>
    <message>
        <source>Clock (Hz):</source>
        <translation>Horloge (Hz)&#xa0;:</translation>
    </message>
    <message>
        <source>The clock is not a number of hertz.</source>
        <translation>L’horloge n’est pas un nombre de hertz.</translation>
    </message>
    <message>
        <source>H&amp;ost:</source>
        <translation>&amp;Hôte&#xa0;:</translation>
    </message>
</context>
<context>
    <name>COPY_DIALOG</name>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>&amp;Copy of:</source>
        <translation>Copie &amp;de&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>&amp;Nouveau nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>D&amp;upliquer</translation>
    </message>
    <message>
        <source>Choose the device to copy.</source>
        <translation>Choisissez le composant à copier.</translation>
    </message>
</context>
<context>
    <name>DATABASE_DEVICE_MENU</name>
    <message>
        <source>&amp;Open in the Configuration Device Dialog</source>
        <translation>&amp;Ouvrir dans le dialogue du composant de configuration</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>Du&amp;pliquer...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>&amp;Comparer...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>Enregistrer les or&amp;ganigrammes...</translation>
    </message>
</context>
<context>
    <name>DATABASE_EDIT_MENU</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Supprimer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Delete, devices: %1</source>
        <translation>Supprimer, composants&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>DATABASE_MENU</name>
    <message>
        <source>&amp;Open Directory...</source>
        <translation>&amp;Ouvrir un répertoire...</translation>
    </message>
    <message>
        <source>&amp;Recent Directories</source>
        <translation>Répertoires &amp;récents</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exporter...</translation>
    </message>
</context>
<context>
    <name>DATABASE_WINDOW</name>
    <message>
        <source>Devices</source>
        <translation>Composants</translation>
    </message>
    <message>
        <source>Da&amp;tabase</source>
        <translation>Base de &amp;données</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Composant</translation>
    </message>
    <message>
        <source>Device Database - %1</source>
        <translation>Base de données de composants - %1</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Ouvrir un répertoire</translation>
    </message>
    <message>
        <source>The directory is used now, but could not be stored in the settings.</source>
        <translation>Le répertoire est utilisé maintenant, mais n’a pas pu être enregistré dans les paramètres.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist any more.</source>
        <translation>Le composant «&#xa0;%1&#xa0;» n’existe plus.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>Le composant «&#xa0;%1&#xa0;» est enregistré.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is deleted. Ctrl+Z brings it back.</source>
        <translation>Le composant «&#xa0;%1&#xa0;» est supprimé. Ctrl+Z le rétablit.</translation>
    </message>
    <message>
        <source>Devices deleted: %1. Ctrl+Z brings them back.</source>
        <translation>Composants supprimés&#xa0;: %1. Ctrl+Z les rétablit.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is back.</source>
        <translation>Le composant «&#xa0;%1&#xa0;» est rétabli.</translation>
    </message>
    <message>
        <source>Devices brought back: %1</source>
        <translation>Composants rétablis&#xa0;: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>Les organigrammes sont dans %1.</translation>
    </message>
    <message>
        <source>Files of Records</source>
        <translation>Fichiers d’enregistrements</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>Devices are being deleted.</source>
        <translation>Suppression des composants en cours.</translation>
    </message>
    <message>
        <source>Devices deleted: %1 of %2. Ctrl+Z brings them back.</source>
        <translation>Composants supprimés&#xa0;: %1 sur %2. Ctrl+Z les rétablit.</translation>
    </message>
    <message>
        <source>Devices are being brought back.</source>
        <translation>Rétablissement des composants en cours.</translation>
    </message>
    <message>
        <source>Devices brought back: %1 of %2. Ctrl+Z goes on.</source>
        <translation>Composants rétablis&#xa0;: %1 sur %2. Ctrl+Z continue.</translation>
    </message>
</context>
<context>
    <name>DATA_PAGE</name>
    <message>
        <source>Go to:</source>
        <translation>Aller à&#xa0;:</translation>
    </message>
    <message>
        <source>Previous Difference</source>
        <translation>Différence précédente</translation>
    </message>
    <message>
        <source>Next Difference</source>
        <translation>Différence suivante</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Enregistrer sous...</translation>
    </message>
    <message>
        <source>Nothing was read. Check Examine to read the chip.</source>
        <translation>Rien n’a été lu. Cochez Examine pour lire la puce.</translation>
    </message>
    <message>
        <source>%1 was read.</source>
        <translation>%1 a été lu.</translation>
    </message>
    <message>
        <source>%1 was read. It is what the file has.</source>
        <translation>%1 a été lu. C’est ce que contient le fichier.</translation>
    </message>
    <message>
        <source>%1 was read. Bytes that differ from the file: %2</source>
        <translation>%1 a été lu. Octets différents du fichier&#xa0;: %2</translation>
    </message>
    <message>
        <source>Save What Was Read</source>
        <translation>Enregistrer ce qui a été lu</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Le fichier %1 ne peut pas être écrit&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: %2, expected %3</source>
        <translation>%1&#xa0;: %2, attendu %3</translation>
    </message>
    <message>
        <source>Bytes that were read</source>
        <translation>Octets lus</translation>
    </message>
    <message>
        <source>The file %1 keeps the contents of the emulated chip. Choose another one.</source>
        <translation>Le fichier %1 garde le contenu de la puce émulée. Choisissez-en un autre.</translation>
    </message>
</context>
<context>
    <name>DETECTED_DIALOG</name>
    <message>
        <source>Detect</source>
        <translation>Détecter</translation>
    </message>
    <message>
        <source>The chip has the ID %1. Devices with this ID:</source>
        <translation>La puce a l’ID %1. Composants ayant cet ID&#xa0;:</translation>
    </message>
</context>
<context>
    <name>DEVICE_MODEL</name>
    <message>
        <source>all</source>
        <translation>tous</translation>
    </message>
    <message>
        <source>Built in</source>
        <translation>Intégré</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Personnel</translation>
    </message>
    <message>
        <source>Of own devices they are read from the flows when they are shown for the first time. Those not read yet are sorted as the highest.</source>
        <translation>Pour les composants personnels, ils sont lus dans les flots quand ils sont affichés pour la première fois. Ceux qui ne sont pas encore lus sont triés comme les plus grands.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Fabricant</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>ID du composant</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tension</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>Octets d’adresse</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>Dies</translation>
    </message>
    <message>
        <source>Device family</source>
        <translation>Famille de composants</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Modifié par</translation>
    </message>
</context>
<context>
    <name>DEVICE_PAGE</name>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>Name, maker, density, voltage or device ID</source>
        <translation>Nom, fabricant, capacité, tension ou ID du composant</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Composants</translation>
    </message>
    <message>
        <source>%1 of %2 devices</source>
        <translation>%1 sur %2 composants</translation>
    </message>
</context>
<context>
    <name>DEVICE_PANEL</name>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>Famille de composa&amp;nts&#xa0;:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Mode de configuration&#xa0;:</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>C&amp;omposant de configuration&#xa0;:</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>Répertoire de la &amp;base de données&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Composant de configuration...</translation>
    </message>
</context>
<context>
    <name>DEVICE_PROGRESS</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>DEVICE_SOURCES</name>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>Le composant «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
</context>
<context>
    <name>EXPORT_DIALOG</name>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Selected records: %1</source>
        <translation>Enregistrements sélectionnés&#xa0;: %1</translation>
    </message>
    <message>
        <source>All stored devices and templates</source>
        <translation>Tous les composants et modèles enregistrés</translation>
    </message>
    <message>
        <source>All built-in devices</source>
        <translation>Tous les composants intégrés</translation>
    </message>
    <message>
        <source>One JSON file</source>
        <translation>Un seul fichier JSON</translation>
    </message>
    <message>
        <source>One JSON file for each record</source>
        <translation>Un fichier JSON par enregistrement</translation>
    </message>
    <message>
        <source>CSV list of the devices, without flows</source>
        <translation>Liste CSV des composants, sans flots</translation>
    </message>
    <message>
        <source>For a &amp;spreadsheet (cannot be imported again)</source>
        <translation>Pour un &amp;tableur (ne peut plus être importé)</translation>
    </message>
    <message>
        <source>Texts that a spreadsheet would run as formulas get an apostrophe.</source>
        <translation>Les textes qu’un tableur exécuterait comme formules reçoivent une apostrophe.</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>&amp;Records:</source>
        <translation>En&amp;registrements&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Destination&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Directory for the Files</source>
        <translation>Répertoire des fichiers</translation>
    </message>
    <message>
        <source>File for the Records</source>
        <translation>Fichier des enregistrements</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>Ces fichiers existent déjà&#xa0;:</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Re&amp;mplacer</translation>
    </message>
    <message>
        <source>Enter where the records go.</source>
        <translation>Indiquez la destination des enregistrements.</translation>
    </message>
    <message>
        <source>There is nothing to export.</source>
        <translation>Il n’y a rien à exporter.</translation>
    </message>
    <message>
        <source>Exported records: %1, into %2</source>
        <translation>Enregistrements exportés&#xa0;: %1, dans %2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>These cannot be read, and are not exported:</source>
        <translation>Ceux-ci ne peuvent pas être lus et ne sont pas exportés&#xa0;:</translation>
    </message>
</context>
<context>
    <name>FILE_PANEL</name>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>No file. A file can be dropped on the window.</source>
        <translation>Aucun fichier. On peut en déposer un sur la fenêtre.</translation>
    </message>
    <message>
        <source>F&amp;ile:</source>
        <translation>F&amp;ichier&#xa0;:</translation>
    </message>
    <message>
        <source>File &amp;begins at:</source>
        <translation>Le &amp;fichier commence à&#xa0;:</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>Lecture du fichier en cours.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Le fichier ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 bytes, CRC-32 %2</source>
        <translation>%1 octets, CRC-32 %2</translation>
    </message>
    <message>
        <source>File to Program</source>
        <translation>Fichier à programmer</translation>
    </message>
</context>
<context>
    <name>FILE_SUMMARY</name>
    <message>
        <source>It is not a file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
</context>
<context>
    <name>HELP_MENU</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Guide de l’utilisateur</translation>
    </message>
    <message>
        <source>Device &amp;Database</source>
        <translation>Base de &amp;données de composants</translation>
    </message>
    <message>
        <source>&amp;Programming</source>
        <translation>&amp;Programmation</translation>
    </message>
    <message>
        <source>&amp;Flows</source>
        <translation>&amp;Flots</translation>
    </message>
    <message>
        <source>&amp;Command Line</source>
        <translation>Ligne de &amp;commande</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À prop&amp;os</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>The guide is not installed. It would be here:
%1</source>
        <translation>Le guide n’est pas installé. Il serait ici&#xa0;:
%1</translation>
    </message>
    <message>
        <source>No program shows this guide. Open it with a viewer or an editor:
%1</source>
        <translation>Aucun programme n’affiche ce guide. Ouvrez-le avec une visionneuse ou un éditeur&#xa0;:
%1</translation>
    </message>
    <message>
        <source>%1 %2

Licence: MIT
Qt %3

The built-in devices are public facts about flash parts. The names of parts belong to their makers.</source>
        <translation>%1 %2

Licence&#xa0;: MIT
Qt %3

Les composants intégrés sont des données publiques sur les composants flash. Leurs noms appartiennent à leurs fabricants.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
</context>
<context>
    <name>HISTORY_MENU</name>
    <message>
        <source>Compare with the &amp;Next State</source>
        <translation>Comparer à l’état &amp;suivant</translation>
    </message>
    <message>
        <source>Compare with the &amp;Previous State</source>
        <translation>Comparer à l’état &amp;précédent</translation>
    </message>
    <message>
        <source>Compare with the &amp;Current State</source>
        <translation>Comparer à l’état &amp;actuel</translation>
    </message>
    <message>
        <source>Compare the Two &amp;Selected States</source>
        <translation>Comparer les &amp;deux états sélectionnés</translation>
    </message>
</context>
<context>
    <name>HISTORY_MODEL</name>
    <message>
        <source>Changed</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Remis en place</translation>
    </message>
    <message>
        <source>This state was replaced by another one.</source>
        <translation>Cet état a été remplacé par un autre.</translation>
    </message>
    <message>
        <source>This state was deleted.</source>
        <translation>Cet état a été supprimé.</translation>
    </message>
    <message>
        <source>This state was deleted, and put back because it could not be replaced.</source>
        <translation>Cet état a été supprimé, puis remis en place parce qu’il n’a pas pu être remplacé.</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Composant</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quand</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Changement</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Famille</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
</context>
<context>
    <name>HISTORY_PAGE</name>
    <message>
        <source>&amp;Compare</source>
        <translation>Com&amp;parer</translation>
    </message>
    <message>
        <source>&amp;Bring Back...</source>
        <translation>Ré&amp;tablir...</translation>
    </message>
    <message>
        <source>Devices and templates</source>
        <translation>Composants et modèles</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Composants</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>No&amp;m&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>T&amp;ype&#xa0;:</translation>
    </message>
    <message>
        <source>States: %1, searching...</source>
        <translation>États&#xa0;: %1, recherche en cours...</translation>
    </message>
    <message>
        <source>States: more than %1</source>
        <translation>États&#xa0;: plus de %1</translation>
    </message>
    <message>
        <source>States: %1</source>
        <translation>États&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is no state before this one.</source>
        <translation>Il n’y a pas d’état avant celui-ci.</translation>
    </message>
    <message>
        <source>There is no state after this one: it was deleted or renamed.</source>
        <translation>Il n’y a pas d’état après celui-ci&#xa0;: il a été supprimé ou renommé.</translation>
    </message>
    <message>
        <source>There is no current state: it was deleted or renamed.</source>
        <translation>Il n’y a pas d’état actuel&#xa0;: il a été supprimé ou renommé.</translation>
    </message>
    <message>
        <source>A state was removed from the history.</source>
        <translation>Un état a été retiré de l’historique.</translation>
    </message>
</context>
<context>
    <name>IMPORT_DIALOG</name>
    <message>
        <source>Import: %1</source>
        <translation>Importer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>As in the files</source>
        <translation>Comme dans les fichiers</translation>
    </message>
    <message>
        <source>&amp;Replace records that differ</source>
        <translation>&amp;Remplacer les enregistrements différents</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>F&amp;amille de composants&#xa0;:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Mode de configuration&#xa0;:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>&amp;Comparer...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>The files are being read.</source>
        <translation>Lecture des fichiers en cours.</translation>
    </message>
    <message>
        <source>Nothing is imported while there are problems.</source>
        <translation>Rien n’est importé tant qu’il y a des problèmes.</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>Il n’y a rien à importer.</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>Dans le fichier</translation>
    </message>
    <message>
        <source>The records are being stored.</source>
        <translation>Enregistrement des données en cours.</translation>
    </message>
    <message>
        <source>Nothing was imported: %1
The preview was made again.</source>
        <translation>Rien n’a été importé&#xa0;: %1
L’aperçu a été refait.</translation>
    </message>
    <message>
        <source>Imported into %1. New: %2, replaced: %3</source>
        <translation>Importé dans %1. Nouveaux&#xa0;: %2, remplacés&#xa0;: %3</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Nothing was imported: you have cancelled it.</source>
        <translation>Rien n’a été importé&#xa0;: vous l’avez annulé.</translation>
    </message>
</context>
<context>
    <name>IMPORT_MODEL</name>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Will be replaced</source>
        <translation>Sera remplacé</translation>
    </message>
    <message>
        <source>Differs, not imported</source>
        <translation>Diffère, non importé</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>Existe déjà</translation>
    </message>
    <message>
        <source>%1: differs</source>
        <translation>%1&#xa0;: diffère</translation>
    </message>
    <message>
        <source>%1: stored %2, in the file %3</source>
        <translation>%1&#xa0;: enregistré %2, dans le fichier %3</translation>
    </message>
    <message>
        <source>Differs in: %1</source>
        <translation>Différences&#xa0;: %1</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Famille</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
</context>
<context>
    <name>MODULE_LOADER</name>
    <message>
        <source>The dialog module was not found. Searched:
%1</source>
        <translation>Le module du dialogue est introuvable. Emplacements examinés&#xa0;:
%1</translation>
    </message>
    <message>
        <source>The dialog module %1 is not loaded: everyone may change %2.</source>
        <translation>Le module du dialogue %1 n’est pas chargé&#xa0;: tout le monde peut modifier %2.</translation>
    </message>
    <message>
        <source>The dialog module %1 cannot be loaded:
%2</source>
        <translation>Le module du dialogue %1 ne peut pas être chargé&#xa0;:
%2</translation>
    </message>
    <message>
        <source>The dialog module %1 has no function &quot;%2&quot;.</source>
        <translation>Le module du dialogue %1 n’a pas de fonction «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DESK</name>
    <message>
        <source>New Device</source>
        <translation>Nouveau composant</translation>
    </message>
    <message>
        <source>SFDP Read-Out of a Chip</source>
        <translation>Lecture SFDP d’une puce</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DIALOG</name>
    <message>
        <source>New Device</source>
        <translation>Nouveau composant</translation>
    </message>
    <message>
        <source>New Device: %1</source>
        <translation>Nouveau composant&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Warnings:</source>
        <translation>A&amp;vertissements&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Listed parts with this ID:</source>
        <translation>Composants de la &amp;liste avec cet ID&#xa0;:</translation>
    </message>
    <message>
        <source>Create &amp;Device</source>
        <translation>C&amp;réer le composant</translation>
    </message>
    <message>
        <source>Save &amp;Read-Out...</source>
        <translation>&amp;Enregistrer la lecture...</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>no differences</source>
        <translation>aucune différence</translation>
    </message>
    <message>
        <source>Save the Read-Out</source>
        <translation>Enregistrer la lecture</translation>
    </message>
    <message>
        <source>What was entered has changed other values or the warnings. Look at them, then create the device.</source>
        <translation>La saisie a modifié d’autres valeurs ou les avertissements. Examinez-les, puis créez le composant.</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DRAFT</name>
    <message>
        <source>ID %1</source>
        <translation>ID %1</translation>
    </message>
</context>
<context>
    <name>ORDER_PANEL</name>
    <message>
        <source>What the file covers</source>
        <translation>Ce que couvre le fichier</translation>
    </message>
    <message>
        <source>The whole device</source>
        <translation>Tout le composant</translation>
    </message>
    <message>
        <source>Address and length</source>
        <translation>Adresse et longueur</translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation>Pla&amp;ge&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>Adre&amp;sse&#xa0;:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Longueur&#xa0;:</translation>
    </message>
</context>
<context>
    <name>PLACE_FIELDS</name>
    <message>
        <source>Device &amp;family:</source>
        <translation>F&amp;amille de composants&#xa0;:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Mode de configuration&#xa0;:</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_MENU</name>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Composant de configuration...</translation>
    </message>
    <message>
        <source>&amp;Detect</source>
        <translation>Dé&amp;tecter</translation>
    </message>
    <message>
        <source>&amp;Open File...</source>
        <translation>&amp;Ouvrir un fichier...</translation>
    </message>
    <message>
        <source>&amp;Try the Flow</source>
        <translation>&amp;Essayer le flot</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Démarrer</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;New Device from Chip...</source>
        <translation>&amp;Nouveau composant à partir de la puce...</translation>
    </message>
    <message>
        <source>New Device from S&amp;FDP File...</source>
        <translation>Nouveau composant à partir d’un &amp;fichier SFDP...</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>D&amp;upliquer...</translation>
    </message>
    <message>
        <source>Device Data&amp;base...</source>
        <translation>&amp;Base de données de composants...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>Enregistrer les or&amp;ganigrammes...</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_WINDOW</name>
    <message>
        <source>Device</source>
        <translation>Composant</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Opérations</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>Programmat&amp;eur</translation>
    </message>
    <message>
        <source>Not started: %1</source>
        <translation>Non démarré&#xa0;: %1</translation>
    </message>
    <message>
        <source>The place where the file begins is not a number.</source>
        <translation>L’endroit où commence le fichier n’est pas un nombre.</translation>
    </message>
    <message>
        <source>Address or length is not a number.</source>
        <translation>L’adresse ou la longueur n’est pas un nombre.</translation>
    </message>
    <message>
        <source>Nothing was detected: %1</source>
        <translation>Rien n’a été détecté&#xa0;: %1</translation>
    </message>
    <message>
        <source>The chip has the ID %1.</source>
        <translation>La puce a l’ID %1.</translation>
    </message>
    <message>
        <source>No device has the ID %1.</source>
        <translation>Aucun composant n’a l’ID %1.</translation>
    </message>
    <message>
        <source>The run is being cancelled. If it is stopped at once, the state of the chip is unknown.</source>
        <translation>L’exécution est en cours d’annulation. Si elle est arrêtée tout de suite, l’état de la puce est inconnu.</translation>
    </message>
    <message>
        <source>A run is under way. Cancel it and close the window?</source>
        <translation>Une exécution est en cours. L’annuler et fermer la fenêtre&#xa0;?</translation>
    </message>
    <message>
        <source>Stop at once</source>
        <translation>Arrêter tout de suite</translation>
    </message>
    <message>
        <source>Cancel the run</source>
        <translation>Annuler l’exécution</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Attendre</translation>
    </message>
    <message>
        <source>Keep running</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>Le composant «&#xa0;%1&#xa0;» est enregistré.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is not there, or of a family or mode that is not offered here.</source>
        <translation>Le composant «&#xa0;%1&#xa0;» n’existe pas, ou sa famille ou son mode n’est pas proposé ici.</translation>
    </message>
    <message>
        <source>The flow charts cannot be saved: %1</source>
        <translation>Les organigrammes ne peuvent pas être enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>Les organigrammes sont dans %1.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>READ_OUT_FILE</name>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <translation>Le fichier %1 ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes and is not an SFDP read-out.</source>
        <translation>Le fichier %1 a plus de %2 octets et n’est pas une lecture SFDP.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Le fichier %1 ne peut pas être écrit&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_COMPARISON</name>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Built-in device</source>
        <translation>Composant intégré</translation>
    </message>
    <message>
        <source>Own device</source>
        <translation>Composant personnel</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Famille</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>Flot Quad I/O</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>Flot Single I/O</translation>
    </message>
    <message>
        <source>The flow cannot be read.</source>
        <translation>Le flot est illisible.</translation>
    </message>
</context>
<context>
    <name>RECORD_EXPORT</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Le fichier %1 ne peut pas être écrit&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_STATES</name>
    <message>
        <source>%1, state %2 (until %3)</source>
        <translation>%1, état %2 (jusqu’au %3)</translation>
    </message>
    <message>
        <source>%1, now</source>
        <translation>%1, maintenant</translation>
    </message>
</context>
<context>
    <name>REMOVED_DEVICES</name>
    <message>
        <source>The device &quot;%1&quot; was deleted by another program already.</source>
        <translation>Le composant «&#xa0;%1&#xa0;» a déjà été supprimé par un autre programme.</translation>
    </message>
    <message>
        <source>The history does not have the device &quot;%1&quot; any more.</source>
        <translation>L’historique ne contient plus le composant «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>RUN_BAR</name>
    <message>
        <source>Progress of the run</source>
        <translation>Progression de l’exécution</translation>
    </message>
    <message>
        <source>Tr&amp;y the Flow</source>
        <translation>Essa&amp;yer le flot</translation>
    </message>
    <message>
        <source>Erases, programs and verifies an emulated chip. No hardware is needed or used.</source>
        <translation>Efface, programme et vérifie une puce émulée. Aucun matériel n’est nécessaire ni utilisé.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Démarrer</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message>
        <source>The run is being cancelled.</source>
        <translation>L’exécution est en cours d’annulation.</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1&#xa0;: %2 sur %3</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>reste %1</translation>
    </message>
</context>
<context>
    <name>RUN_PREPARATION</name>
    <message>
        <source>No operation is checked.</source>
        <translation>Aucune opération n’est cochée.</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>Aucun fichier n’est choisi.</translation>
    </message>
    <message>
        <source>No device is chosen.</source>
        <translation>Aucun composant n’est choisi.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>Le composant «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Le fichier %1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>Le fichier %1 est vide.</translation>
    </message>
    <message>
        <source>The file needs %1 bytes from %2 on, and the device has %3 bytes.</source>
        <translation>Le fichier demande %1 octets à partir de %2, et le composant a %3 octets.</translation>
    </message>
</context>
<context>
    <name>RUN_WORDS</name>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Failed at %1</source>
        <translation>Échec à %1</translation>
    </message>
    <message>
        <source>Failed at %1, action %2 &quot;%3&quot;</source>
        <translation>Échec à %1, action %2 «&#xa0;%3&#xa0;»</translation>
    </message>
    <message>
        <source>Stopped. The state of the chip is unknown.</source>
        <translation>Arrêté. L’état de la puce est inconnu.</translation>
    </message>
    <message>
        <source>The connection is lost. The state of the chip is unknown.</source>
        <translation>La connexion est perdue. L’état de la puce est inconnu.</translation>
    </message>
    <message>
        <source>Passed, but not everything could be stored</source>
        <translation>Réussi, mais tout n’a pas pu être enregistré</translation>
    </message>
    <message>
        <source>Passed, but a real chip would have refused or misread commands: see the log</source>
        <translation>Réussi, mais une puce réelle aurait refusé ou mal lu des commandes&#xa0;: voir le journal</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Réussi</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>Not started: see the log</source>
        <translation>Non démarré&#xa0;: voir le journal</translation>
    </message>
    <message>
        <source>a test pattern</source>
        <translation>un motif de test</translation>
    </message>
    <message>
        <source>Trying the flow of %1 on an emulated chip that is full of other data</source>
        <translation>Essai du flot de %1 sur une puce émulée pleine d’autres données</translation>
    </message>
    <message>
        <source>Content: %1</source>
        <translation>Contenu&#xa0;: %1</translation>
    </message>
    <message>
        <source>Nothing more was sent, because this may be another chip than the device says.</source>
        <translation>Rien d’autre n’a été envoyé, car cette puce peut être une autre que celle du composant.</translation>
    </message>
    <message>
        <source>Note of the chip: %1</source>
        <translation>Note de la puce&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 (%2 commands, %3 s)</source>
        <translation>%1 (%2 commandes, %3 s)</translation>
    </message>
    <message>
        <source>Whole sectors are erased. These bytes beside the range are erased, too:

%1

Erase them?</source>
        <translation>Des secteurs entiers sont effacés. Ces octets hors de la plage sont effacés aussi&#xa0;:

%1

Les effacer&#xa0;?</translation>
    </message>
    <message>
        <source>%1 on the connection %2</source>
        <translation>%1 sur la connexion %2</translation>
    </message>
</context>
<context>
    <name>TRACE_MODEL</name>
    <message>
        <source>%1 ... (%2 bytes)</source>
        <translation>%1 ... (%2 octets)</translation>
    </message>
    <message>
        <source>%1, %2 clocks</source>
        <translation>%1, %2 cycles</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Temps (ms)</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Attendu</translation>
    </message>
</context>
<context>
    <name>TRACE_PAGE</name>
    <message>
        <source>All operations</source>
        <translation>Toutes les opérations</translation>
    </message>
    <message>
        <source>Commands of:</source>
        <translation>Commandes de&#xa0;:</translation>
    </message>
    <message>
        <source>Commands of the last run</source>
        <translation>Commandes de la dernière exécution</translation>
    </message>
    <message>
        <source>%1 commands</source>
        <translation>%1 commandes</translation>
    </message>
</context>
</TS>
