<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>GFPC_CHARTS</name>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>Les flots de %1 ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>%1 has no quad-I/O flow.</source>
        <translation>%1 n’a pas de flot Quad I/O.</translation>
    </message>
    <message>
        <source>%1 has no single-I/O flow.</source>
        <translation>%1 n’a pas de flot Single I/O.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>There are no fonts on this computer.</source>
        <translation>Il n’y a pas de polices sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>Flot Quad I/O</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>Flot Single I/O</translation>
    </message>
</context>
<context>
    <name>gfpdb</name>
    <message>
        <source>Upper and lower case count as the same.</source>
        <translation>Majuscules et minuscules ne sont pas distinguées.</translation>
    </message>
    <message>
        <source>There is a built-in device called %1: choose another name.</source>
        <translation>Il existe un composant intégré nommé %1&#xa0;: choisissez un autre nom.</translation>
    </message>
    <message>
        <source>There is a built-in template called %1: choose another name.</source>
        <translation>Il existe un modèle intégré nommé %1&#xa0;: choisissez un autre nom.</translation>
    </message>
    <message>
        <source>part name</source>
        <translation>Nom du composant</translation>
    </message>
    <message>
        <source>The device %1 is neither deleted nor replaced, because it could not be read when it was last looked for: %2</source>
        <translation>Le composant %1 n’est ni supprimé ni remplacé, car il n’a pas pu être lu la dernière fois&#xa0;: %2</translation>
    </message>
    <message>
        <source>The flows of %1 in %2 cannot be read.</source>
        <translation>Les flots de %1 dans %2 ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a number.</source>
        <translation>La propriété %1 d’un composant n’est pas un nombre.</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a text.</source>
        <translation>La propriété %1 d’un composant n’est pas un texte.</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name.</source>
        <translation>Il existe un modèle enregistré nommé %1&#xa0;: choisissez un autre nom.</translation>
    </message>
    <message>
        <source>There is a device called %1: it is the one that is shown. Enter another name to rename it.</source>
        <translation>Il existe un composant nommé %1&#xa0;: c’est celui qui est affiché. Saisissez un autre nom pour le renommer.</translation>
    </message>
    <message>
        <source>There is a device called %1 for this family and configuration mode: choose another name.</source>
        <translation>Il existe un composant nommé %1 pour cette famille et ce mode de configuration&#xa0;: choisissez un autre nom.</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name, or remove that template first.</source>
        <translation>Il existe un modèle enregistré nommé %1&#xa0;: choisissez un autre nom, ou supprimez d’abord ce modèle.</translation>
    </message>
    <message>
        <source>The template name %1 differs from the device name %2 in case only: choose another name.</source>
        <translation>Le nom de modèle %1 ne diffère du nom de composant %2 que par la casse&#xa0;: choisissez un autre nom.</translation>
    </message>
    <message>
        <source>There is a device called %1: choose another name.</source>
        <translation>Il existe un composant nommé %1&#xa0;: choisissez un autre nom.</translation>
    </message>
    <message>
        <source>A flash device with an I/O voltage of %1 cannot be connected to %2 devices: it must support 1.8 V.</source>
        <translation>Un composant flash dont la tension d’I/O est %1 ne peut pas être relié aux composants %2&#xa0;: il doit fonctionner sous 1,8 V.</translation>
    </message>
    <message>
        <source>%1 The device %2 that was deleted before was not put back: %3</source>
        <translation>%1 Le composant %2, supprimé auparavant, n’a pas été rétabli&#xa0;: %3</translation>
    </message>
    <message>
        <source>There is no record to save.</source>
        <translation>Il n’y a pas d’enregistrement à sauvegarder.</translation>
    </message>
    <message>
        <source>The configuration mode has no flash devices.</source>
        <translation>Le mode de configuration n’a pas de composants flash.</translation>
    </message>
    <message>
        <source>The device %1 contains text that is not valid UTF-8.</source>
        <translation>Le composant %1 contient du texte qui n’est pas de l’UTF-8 valide.</translation>
    </message>
    <message>
        <source>The template %1 is built in: it cannot be removed.</source>
        <translation>Le modèle %1 est intégré&#xa0;: il ne peut pas être supprimé.</translation>
    </message>
    <message>
        <source>device name</source>
        <translation>Nom du composant</translation>
    </message>
    <message>
        <source>device ID</source>
        <translation>ID du composant</translation>
    </message>
    <message>
        <source>I/O voltage</source>
        <translation>Tension d’I/O</translation>
    </message>
    <message>
        <source>density</source>
        <translation>Capacité du composant</translation>
    </message>
    <message>
        <source>total die count</source>
        <translation>Nombre total de dies</translation>
    </message>
    <message>
        <source>number of single-I/O dummy clocks</source>
        <translation>Cycles dummy en mode Single I/O</translation>
    </message>
    <message>
        <source>number of quad-I/O dummy clocks</source>
        <translation>Cycles dummy en mode Quad I/O</translation>
    </message>
    <message>
        <source>template name</source>
        <translation>Nom du modèle</translation>
    </message>
    <message>
        <source>flow template</source>
        <translation>Modèle de flot de programmation</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>un nombre entier de %1 à %2</translation>
    </message>
    <message>
        <source>one byte in hexadecimal, such as 0x9F</source>
        <translation>un octet en hexadécimal, par exemple 0x9F</translation>
    </message>
    <message>
        <source>1 to %1 bytes in hexadecimal separated by single spaces, such as 0x00 0x02</source>
        <translation>de 1 à %1 octets en hexadécimal séparés par une espace, par exemple 0x00 0x02</translation>
    </message>
    <message>
        <source>an address of eight hexadecimal digits, such as 0x00010000</source>
        <translation>une adresse de huit chiffres hexadécimaux, par exemple 0x00010000</translation>
    </message>
    <message>
        <source>%1, or %2</source>
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>text of 1 to %1 characters on one line</source>
        <translation>texte de 1 à %1 caractères sur une ligne</translation>
    </message>
    <message>
        <source>a power of two from 1 to %1</source>
        <translation>une puissance de deux de 1 à %1</translation>
    </message>
    <message>
        <source>Loop marker</source>
        <translation>Marque de boucle</translation>
    </message>
    <message>
        <source>There is no action property with the number %1. Allowed: 0 to %2.</source>
        <translation>Il n’existe pas de propriété d’action numéro %1. Autorisé&#xa0;: de 0 à %2.</translation>
    </message>
    <message>
        <source>An empty value</source>
        <translation>Une valeur vide</translation>
    </message>
    <message>
        <source>%1 is not allowed for &quot;%2&quot;. Allowed: %3.</source>
        <translation>%1 n’est pas autorisé pour «&#xa0;%2&#xa0;». Autorisé&#xa0;: %3.</translation>
    </message>
    <message>
        <source>The %1 is empty: 1 to %2 characters are allowed.</source>
        <translation>«&#xa0;%1&#xa0;» est vide&#xa0;: de 1 à %2 caractères sont autorisés.</translation>
    </message>
    <message>
        <source>The %1 has characters that cannot be stored.</source>
        <translation>«&#xa0;%1&#xa0;» contient des caractères qui ne peuvent pas être enregistrés.</translation>
    </message>
    <message>
        <source>The %1 has %2 characters: 1 to %3 characters are allowed.</source>
        <translation>«&#xa0;%1&#xa0;» compte %2 caractères&#xa0;: de 1 à %3 sont autorisés.</translation>
    </message>
    <message>
        <source>The %1 has a line break or another control character: use letters, digits, punctuation and spaces.</source>
        <translation>«&#xa0;%1&#xa0;» contient un saut de ligne ou un autre caractère de commande&#xa0;: utilisez des lettres, chiffres, signes de ponctuation et espaces.</translation>
    </message>
    <message>
        <source>The %1 %2 begins or ends with a space: remove it.</source>
        <translation>«&#xa0;%1&#xa0;» %2 commence ou finit par une espace&#xa0;: supprimez-la.</translation>
    </message>
    <message>
        <source>The %1 %2 is reserved for a new device: choose another.</source>
        <translation>«&#xa0;%1&#xa0;» %2 est réservé à un nouveau composant&#xa0;: choisissez-en un autre.</translation>
    </message>
    <message>
        <source>%1 Enter 1 to %2 bytes in hexadecimal, separated by spaces or commas, for example 0xC2 0x20 0x19.</source>
        <translation>%1 Saisissez de 1 à %2 octets en hexadécimal, séparés par des espaces ou des virgules, par exemple 0xC2 0x20 0x19.</translation>
    </message>
    <message>
        <source>The device ID is empty.</source>
        <translation>L’ID du composant est vide.</translation>
    </message>
    <message>
        <source>%1 is not a byte of a device ID.</source>
        <translation>%1 n’est pas un octet d’ID de composant.</translation>
    </message>
    <message>
        <source>The device ID has %1 bytes.</source>
        <translation>L’ID du composant compte %1 octets.</translation>
    </message>
    <message>
        <source>The %1 %2 is out of range: %3 to %4 are allowed.</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: %2 est hors limites, de %3 à %4 sont autorisés.</translation>
    </message>
    <message>
        <source>The %1 %2 is not known: choose one of %3.</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: %2 n’est pas connu, choisissez parmi %3.</translation>
    </message>
    <message>
        <source>The loop that starts at action %1 has no end.</source>
        <translation>La boucle qui commence à l’action %1 n’a pas de fin.</translation>
    </message>
    <message>
        <source>A loop over each %1 cannot be in a loop over each %2. Allowed: a loop over each page or sector in a loop over each die.</source>
        <translation>Une boucle sur «&#xa0;%1&#xa0;» ne peut pas être dans une boucle sur «&#xa0;%2&#xa0;». Autorisé&#xa0;: une boucle sur «&#xa0;page&#xa0;» ou «&#xa0;sector&#xa0;» dans une boucle sur «&#xa0;die&#xa0;».</translation>
    </message>
    <message>
        <source>The end of a loop has no start before it.</source>
        <translation>La fin d’une boucle n’est précédée d’aucun début.</translation>
    </message>
    <message>
        <source>The end of a loop over each %1 closes a loop over each %2.</source>
        <translation>La fin d’une boucle sur «&#xa0;%1&#xa0;» ferme une boucle sur «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The loop over each %1 has no %2 action to determine its step size.</source>
        <translation>La boucle sur «&#xa0;%1&#xa0;» n’a pas d’action «&#xa0;%2&#xa0;» qui détermine son pas.</translation>
    </message>
    <message>
        <source>One of several erases in a loop has a fixed address. Allowed: loop or die.</source>
        <translation>L’un des effacements d’une boucle a une adresse fixe. Autorisé&#xa0;: loop ou die.</translation>
    </message>
    <message>
        <source>The loop has page sizes of %1 and of %2. Allowed: one page size in a loop.</source>
        <translation>La boucle a des tailles de page de %1 et de %2. Autorisé&#xa0;: une seule taille de page par boucle.</translation>
    </message>
    <message>
        <source>The erase sizes %1 and %2 do not go together in one loop. Allowed: sizes of which each divides every larger one.</source>
        <translation>Les tailles d’effacement %1 et %2 ne vont pas ensemble dans une boucle. Autorisé&#xa0;: des tailles dont chacune divise toutes les plus grandes.</translation>
    </message>
    <message>
        <source>The value &quot;loop&quot; is outside any loop.</source>
        <translation>La valeur «&#xa0;loop&#xa0;» est hors de toute boucle.</translation>
    </message>
    <message>
        <source>The value &quot;die&quot; is outside a loop over each die.</source>
        <translation>La valeur «&#xa0;die&#xa0;» est hors d’une boucle sur «&#xa0;die&#xa0;».</translation>
    </message>
    <message>
        <source>The action has %1 address bytes, an earlier one has %2. Allowed: the same number in all actions of a flow.</source>
        <translation>L’action a %1 octets d’adresse, une action précédente en a %2. Autorisé&#xa0;: le même nombre dans toutes les actions d’un flot.</translation>
    </message>
    <message>
        <source>The flows cannot be read.</source>
        <translation>Les flots ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>The device and its template need different names: both are called %1.</source>
        <translation>Le composant et son modèle doivent avoir des noms différents&#xa0;: tous deux s’appellent %1.</translation>
    </message>
    <message>
        <source>There is no family %1. Allowed: %2 to %3.</source>
        <translation>La famille %1 n’existe pas. Autorisé&#xa0;: de %2 à %3.</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no flash devices.</source>
        <translation>Le mode de configuration %1 n’a pas de composants flash.</translation>
    </message>
    <message>
        <source>The %1 %2 is not a usual one. Usual: %3.</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: %2 n’est pas une valeur usuelle. Usuelles&#xa0;: %3.</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no flows: the dialog drops them.</source>
        <translation>Les composants de ce mode de configuration n’ont pas de flots&#xa0;: le dialogue les abandonne.</translation>
    </message>
    <message>
        <source>There are no flows.</source>
        <translation>Il n’y a pas de flots.</translation>
    </message>
    <message>
        <source>There are no flows for this configuration mode.</source>
        <translation>Il n’y a pas de flots pour ce mode de configuration.</translation>
    </message>
    <message>
        <source>The value is missing: %1 is stored.</source>
        <translation>La valeur manque&#xa0;: %1 est enregistré.</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no such value: the dialog drops it.</source>
        <translation>Les composants de ce mode de configuration n’ont pas cette valeur&#xa0;: le dialogue l’abandonne.</translation>
    </message>
    <message>
        <source>The copy in %1 cannot be compared: %2</source>
        <translation>La copie dans %1 ne peut pas être comparée&#xa0;: %2</translation>
    </message>
    <message>
        <source>The copy in %1 is not the same as %2.</source>
        <translation>La copie dans %1 n’est pas identique à %2.</translation>
    </message>
    <message>
        <source>There is nothing to copy in %1.</source>
        <translation>Il n’y a rien à copier dans %1.</translation>
    </message>
    <message>
        <source>an unknown day</source>
        <translation>une date inconnue</translation>
    </message>
    <message>
        <source>an unknown user</source>
        <translation>un utilisateur inconnu</translation>
    </message>
    <message>
        <source>The stored template %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>Le modèle enregistré %1 a été enregistré par %2 (date&#xa0;: %3) depuis qu’il a été cherché ici.</translation>
    </message>
    <message>
        <source>The device %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>Le composant %1 a été enregistré par %2 (date&#xa0;: %3) depuis qu’il a été cherché ici.</translation>
    </message>
    <message>
        <source>The stored template %1 was changed by %2 on %3 since it was read here.</source>
        <translation>Le modèle enregistré %1 a été modifié par %2 (date&#xa0;: %3) depuis qu’il a été lu ici.</translation>
    </message>
    <message>
        <source>The device %1 was changed by %2 on %3 since it was read here.</source>
        <translation>Le composant %1 a été modifié par %2 (date&#xa0;: %3) depuis qu’il a été lu ici.</translation>
    </message>
    <message>
        <source>The stored template %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>Le modèle enregistré %1 a été supprimé par %2 (date&#xa0;: %3) depuis qu’il a été lu ici.</translation>
    </message>
    <message>
        <source>The device %1 was renamed by %2 on %3 since it was read here.</source>
        <translation>Le composant %1 a été renommé par %2 (date&#xa0;: %3) depuis qu’il a été lu ici.</translation>
    </message>
    <message>
        <source>The device %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>Le composant %1 a été supprimé par %2 (date&#xa0;: %3) depuis qu’il a été lu ici.</translation>
    </message>
    <message>
        <source>Try again to store it as a new one.</source>
        <translation>Réessayez pour l’enregistrer comme nouveau.</translation>
    </message>
    <message>
        <source>Look at it again, or try again: then that state goes into the history.</source>
        <translation>Consultez-le de nouveau ou réessayez&#xa0;: cet état passe alors dans l’historique.</translation>
    </message>
    <message>
        <source>The database in %1 is not empty.</source>
        <translation>La base de données dans %1 n’est pas vide.</translation>
    </message>
    <message>
        <source>A stored template called %1 already exists.</source>
        <translation>Il existe déjà un modèle enregistré nommé %1.</translation>
    </message>
    <message>
        <source>A device called %1 already exists.</source>
        <translation>Il existe déjà un composant nommé %1.</translation>
    </message>
    <message>
        <source>There is no state %1 in the history.</source>
        <translation>L’historique n’a pas d’état %1.</translation>
    </message>
    <message>
        <source>The database in %1 is another one now.</source>
        <translation>La base de données dans %1 n’est plus la même.</translation>
    </message>
    <message>
        <source>It is state %1 of the history.</source>
        <translation>C’est l’état %1 de l’historique.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is a link or not a regular file. Remove it if you did not put it there.</source>
        <translation>La base de données %1 n’est pas utilisée&#xa0;: %2 est un lien ou n’est pas un fichier ordinaire. Supprimez-le si vous ne l’y avez pas mis.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program, and would change it. Close the database in that program. If the file is still there then, move it to another directory.</source>
        <translation>La base de données %1 n’est pas utilisée&#xa0;: %2 a été écrit par un autre programme et la modifierait. Fermez la base de données dans ce programme. Si le fichier est toujours là, déplacez-le dans un autre répertoire.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program for several databases at once, and names a file that would be removed. Open the database in that program, or move the file to another directory.</source>
        <translation>La base de données %1 n’est pas utilisée&#xa0;: %2 a été écrit par un autre programme pour plusieurs bases de données à la fois, et nomme un fichier qui serait supprimé. Ouvrez la base de données dans ce programme, ou déplacez le fichier dans un autre répertoire.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is the journal of another database, or of another state of this one, and would damage it. Move that file to another directory, then try again.</source>
        <translation>La base de données %1 n’est pas utilisée&#xa0;: %2 est le journal d’une autre base de données, ou d’un autre état de celle-ci, et l’endommagerait. Déplacez ce fichier dans un autre répertoire, puis réessayez.</translation>
    </message>
    <message>
        <source>The database %1 is locked by another program (%2).</source>
        <translation>La base de données %1 est verrouillée par un autre programme (%2).</translation>
    </message>
    <message>
        <source>The database %1 cannot be written (%2).</source>
        <translation>La base de données %1 ne peut pas être écrite (%2).</translation>
    </message>
    <message>
        <source>The database %1 is damaged (%2). It is left as it is.</source>
        <translation>La base de données %1 est endommagée (%2). Elle est laissée telle quelle.</translation>
    </message>
    <message>
        <source>There is no room for the database %1 (%2).</source>
        <translation>Il n’y a plus de place pour la base de données %1 (%2).</translation>
    </message>
    <message>
        <source>The file %1 is not a database (%2). It is left as it is.</source>
        <translation>Le fichier %1 n’est pas une base de données (%2). Il est laissé tel quel.</translation>
    </message>
    <message>
        <source>The database %1 cannot be used: %2 (%3).</source>
        <translation>La base de données %1 ne peut pas être utilisée&#xa0;: %2 (%3).</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is not installed.</source>
        <translation>Le pilote SQLite de Qt n’est pas installé.</translation>
    </message>
    <message>
        <source>The database %1 was left in the middle of a change by a program that ended there. It can be read again when someone who can write it has opened it once.</source>
        <translation>Un programme interrompu a laissé la base de données %1 au milieu d’une modification. Elle sera de nouveau lisible quand quelqu’un qui peut l’écrire l’aura ouverte une fois.</translation>
    </message>
    <message>
        <source>The database %1 can be read, but not changed: %2.</source>
        <translation>La base de données %1 peut être lue, mais pas modifiée&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be read: %2.</source>
        <translation>Le répertoire de base de données %1 ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The database directory %1 does not exist.</source>
        <translation>Le répertoire de base de données %1 n’existe pas.</translation>
    </message>
    <message>
        <source>The database directory %1 is not a directory: a part of it is a file.</source>
        <translation>Le répertoire de base de données %1 n’est pas un répertoire&#xa0;: une partie est un fichier.</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be reached: %2.</source>
        <translation>Le répertoire de base de données %1 est inaccessible&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The database %1 is empty: its content was lost. It is left as it is; restore a backup copy, or delete it to start over.</source>
        <translation>La base de données %1 est vide&#xa0;: son contenu a été perdu. Elle est laissée telle quelle&#xa0;; mettez une copie à sa place, ou supprimez-la pour recommencer.</translation>
    </message>
    <message>
        <source>The file %1 is not a database (too short). It is left as it is.</source>
        <translation>Le fichier %1 n’est pas une base de données (trop court). Il est laissé tel quel.</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached: it is a link to %2 (%3). Is the drive or the share that it is on connected?</source>
        <translation>La base de données %1 est inaccessible&#xa0;: c’est un lien vers %2 (%3). Le lecteur ou le partage où elle se trouve est-il connecté&#xa0;?</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached (%2). Is the drive or the share that it is on connected?</source>
        <translation>La base de données %1 est inaccessible (%2). Le lecteur ou le partage où elle se trouve est-il connecté&#xa0;?</translation>
    </message>
    <message>
        <source>There is no database %1, but %2, which a program left that was writing it. Put the database back, or move that file to another directory to begin with an empty database.</source>
        <translation>La base de données %1 n’existe pas, mais %2, laissé par un programme qui l’écrivait, existe. Remettez la base de données en place, ou déplacez ce fichier dans un autre répertoire pour commencer avec une base vide.</translation>
    </message>
    <message>
        <source>The database directory %1 holds no database, and none can be created: %2.</source>
        <translation>Le répertoire %1 ne contient pas de base de données, et aucune ne peut être créée&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The database %1 is damaged (its end is missing). It is left as it is.</source>
        <translation>La base de données %1 est endommagée (sa fin manque). Elle est laissée telle quelle.</translation>
    </message>
    <message>
        <source>The database %1 cannot be created: %2.</source>
        <translation>La base de données %1 ne peut pas être créée&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>La base de données %1 a été remplacée ou supprimée par un autre programme pendant son utilisation. Rien n’a été modifié&#xa0;: regardez les composants présents, puis réessayez.</translation>
    </message>
    <message>
        <source>%1 Whether the change was stored cannot be read: look at the devices before you try again.</source>
        <translation>%1 Impossible de lire si la modification a été enregistrée&#xa0;: regardez les composants avant de réessayer.</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while a change was stored, which is lost: look at the devices that are there now, then try again.</source>
        <translation>La base de données %1 a été remplacée ou supprimée par un autre programme pendant l’enregistrement d’une modification, qui est perdue&#xa0;: regardez les composants présents, puis réessayez.</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its texts are %2, not UTF-8. It is left as it is.</source>
        <translation>La base de données %1 a été modifiée par un autre programme&#xa0;: ses textes sont en %2, pas en UTF-8. Elle est laissée telle quelle.</translation>
    </message>
    <message>
        <source>The file %1 is a database of another program. It is left as it is.</source>
        <translation>Le fichier %1 est une base de données d’un autre programme. Il est laissé tel quel.</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer program (its schema is %2, this program knows up to %3). It is left as it is.</source>
        <translation>La base de données %1 a été écrite par un programme plus récent (son schéma est %2, ce programme connaît jusqu’à %3). Elle est laissée telle quelle.</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its tables are not those of schema %2. It is left as it is.</source>
        <translation>La base de données %1 a été modifiée par un autre programme&#xa0;: ses tables ne sont pas celles du schéma %2. Elle est laissée telle quelle.</translation>
    </message>
    <message>
        <source>The database in %1 is damaged: %2</source>
        <translation>La base de données dans %1 est endommagée&#xa0;: %2</translation>
    </message>
    <message>
        <source>The database server %1 did not answer in time.</source>
        <translation>Le serveur de base de données %1 n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The database server %1 cannot be reached: %2.</source>
        <translation>Le serveur de base de données %1 est inaccessible&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The database server %1 refused: %2.</source>
        <translation>Le serveur de base de données %1 a refusé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 does not allow that to the login %3: its administrator can grant the role %4 or %5.</source>
        <translation>La base de données %1 du serveur %2 ne permet pas cela à l’utilisateur %3&#xa0;: son administrateur peut accorder le rôle %4 ou %5.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 has no schema %3 for devices: its administrator can make it with &quot;gfpdb server sql&quot;.</source>
        <translation>La base de données %1 du serveur %2 n’a pas de schéma %3 pour les composants&#xa0;: son administrateur peut le créer avec «&#xa0;gfpdb server sql&#xa0;».</translation>
    </message>
    <message>
        <source>There is no room for the change on the server %1.</source>
        <translation>Il n’y a plus de place pour la modification sur le serveur %1.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is locked by another program.</source>
        <translation>La base de données %1 du serveur %2 est verrouillée par un autre programme.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is changed by too many programs now: try again.</source>
        <translation>Trop de programmes modifient en ce moment la base de données %1 du serveur %2&#xa0;: réessayez.</translation>
    </message>
    <message>
        <source>The directory %1 has the database %2 and names a server in %3. Move the database to another directory, and copy its records from there to the server with &quot;gfpdb copy&quot;.</source>
        <translation>Le répertoire %1 contient la base de données %2 et nomme un serveur dans %3. Déplacez la base de données dans un autre répertoire, et copiez-en les enregistrements sur le serveur avec «&#xa0;gfpdb copy&#xa0;».</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 cannot be read by the login %3: its administrator can grant the role %4.</source>
        <translation>La base de données %1 du serveur %2 ne peut pas être lue par l’utilisateur %3&#xa0;: son administrateur peut accorder le rôle %4.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the server takes no changes now.</source>
        <translation>La base de données %1 du serveur %2 peut être lue, mais pas modifiée&#xa0;: le serveur n’accepte aucune modification pour le moment.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the login %3 has not the role %4.</source>
        <translation>La base de données %1 du serveur %2 peut être lue, mais pas modifiée&#xa0;: l’utilisateur %3 n’a pas le rôle %4.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by a newer program (schema %3). It is left as it is.</source>
        <translation>La base de données %1 du serveur %2 a été écrite par un programme plus récent (schéma %3). Elle est laissée telle quelle.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is a database of another program. It is left as it is.</source>
        <translation>La base de données %1 du serveur %2 est celle d’un autre programme. Elle est laissée telle quelle.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by an older program (schema %3): it can be used when someone with the role %4 has opened it once.</source>
        <translation>La base de données %1 du serveur %2 a été écrite par un programme plus ancien (schéma %3)&#xa0;: elle pourra être utilisée quand quelqu’un ayant le rôle %4 l’aura ouverte une fois.</translation>
    </message>
    <message>
        <source>The file %1 names a server since the directory was opened: open it again.</source>
        <translation>Le fichier %1 désigne un serveur depuis que le répertoire a été ouvert&#xa0;: ouvrez-le de nouveau.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Fabricant</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>Dies</translation>
    </message>
    <message>
        <source>Dies are selected by C2</source>
        <translation>Sélection des dies par C2</translation>
    </message>
    <message>
        <source>Page size (bytes)</source>
        <translation>Taille de page (octets)</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>Octets d’adresse</translation>
    </message>
    <message>
        <source>4-byte addressing, enter</source>
        <translation>Adressage sur 4 octets, entrée</translation>
    </message>
    <message>
        <source>4-byte addressing, leave</source>
        <translation>Adressage sur 4 octets, sortie</translation>
    </message>
    <message>
        <source>4-byte addressing, register and bit</source>
        <translation>Adressage sur 4 octets, registre et bit</translation>
    </message>
    <message>
        <source>Quad enable</source>
        <translation>Activation Quad</translation>
    </message>
    <message>
        <source>Unlock blocks</source>
        <translation>Déverrouiller les blocs</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialisation</translation>
    </message>
    <message>
        <source>Busy is read by</source>
        <translation>Occupation lue par</translation>
    </message>
    <message>
        <source>Dummy clocks, single</source>
        <translation>Cycles dummy, Single</translation>
    </message>
    <message>
        <source>Quad read</source>
        <translation>Lecture Quad</translation>
    </message>
    <message>
        <source>Dummy clocks, quad</source>
        <translation>Cycles dummy, Quad</translation>
    </message>
    <message>
        <source>Quad program</source>
        <translation>Programmation Quad</translation>
    </message>
    <message>
        <source>Page program, longest wait (us)</source>
        <translation>Programmation de page, attente maximale (us)</translation>
    </message>
    <message>
        <source>Erase, longest wait (ms)</source>
        <translation>Effacement, attente maximale (ms)</translation>
    </message>
    <message>
        <source>from the ID</source>
        <translation>d’après l’ID</translation>
    </message>
    <message>
        <source>from the density</source>
        <translation>d’après la capacité</translation>
    </message>
    <message>
        <source>assumed</source>
        <translation>supposé</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>saisi</translation>
    </message>
    <message>
        <source>The command is on four lines, but the single-I/O flow has one.</source>
        <translation>La commande utilise quatre lignes, mais le flot Single I/O n’en a qu’une.</translation>
    </message>
    <message>
        <source>The image is compared with a mask: its bytes with bits that the mask clears never match.</source>
        <translation>L’image est comparée avec un masque&#xa0;: ses octets dont le masque efface des bits ne correspondent jamais.</translation>
    </message>
    <message>
        <source>The expected data have bits that the mask clears: they never match.</source>
        <translation>Les données attendues ont des bits que le masque efface&#xa0;: elles ne correspondent jamais.</translation>
    </message>
    <message>
        <source>The mask has no bit: whatever is read matches.</source>
        <translation>Le masque n’a aucun bit&#xa0;: tout ce qui est lu correspond.</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: what is beyond the end of a page overwrites its start.</source>
        <translation>La taille de page est %1, mais le composant a des pages de %2 octets&#xa0;: ce qui dépasse la fin d’une page en écrase le début.</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: programming takes longer than necessary.</source>
        <translation>La taille de page est %1, mais le composant a des pages de %2 octets&#xa0;: la programmation dure plus longtemps que nécessaire.</translation>
    </message>
    <message>
        <source>Data are changed in an operation that is also executed when the user asked for neither Program nor Erase.</source>
        <translation>Des données sont modifiées dans une opération qui est aussi exécutée quand l’utilisateur n’a demandé ni Program ni Erase.</translation>
    </message>
    <message>
        <source>Three address bytes reach %1 bytes, but the action works on %2.</source>
        <translation>Trois octets d’adresse atteignent %1 octets, mais l’action porte sur %2.</translation>
    </message>
    <message>
        <source>The command does not have the bus width %1. Allowed: %2.</source>
        <translation>La commande n’a pas la largeur de bus %1. Autorisé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>This is a command that programs.</source>
        <translation>C’est une commande qui programme.</translation>
    </message>
    <message>
        <source>This is a command that reads data.</source>
        <translation>C’est une commande qui lit des données.</translation>
    </message>
    <message>
        <source>This is a command that erases.</source>
        <translation>C’est une commande qui efface.</translation>
    </message>
    <message>
        <source>The command has no dummy clocks.</source>
        <translation>La commande n’a pas de cycles dummy.</translation>
    </message>
    <message>
        <source>The command has two dummy clocks at least, its mode clocks.</source>
        <translation>La commande a au moins deux cycles dummy, ses cycles de mode.</translation>
    </message>
    <message>
        <source>Nothing in the loop depends on its step: every step does the same.</source>
        <translation>Rien dans la boucle ne dépend de son pas&#xa0;: chaque pas fait la même chose.</translation>
    </message>
    <message>
        <source>The device has one die: the loop has one step.</source>
        <translation>Le composant a un die&#xa0;: la boucle a un pas.</translation>
    </message>
    <message>
        <source>There is no ID check: the flow changes whatever chip is connected.</source>
        <translation>L’ID n’est pas vérifié&#xa0;: le flot modifie n’importe quelle puce connectée.</translation>
    </message>
    <message>
        <source>The chip is changed before its ID is checked.</source>
        <translation>La puce est modifiée avant que son ID soit vérifié.</translation>
    </message>
    <message>
        <source>4-byte addressing is entered here, and Termination does not leave it.</source>
        <translation>L’adressage sur 4 octets commence ici, et Termination n’en sort pas.</translation>
    </message>
    <message>
        <source>No command uses this write enable.</source>
        <translation>Aucune commande n’utilise cette autorisation d’écriture.</translation>
    </message>
    <message>
        <source>The chip is in deep power-down and ignores the command.</source>
        <translation>La puce est en deep power-down et ignore la commande.</translation>
    </message>
    <message>
        <source>The command follows the reset that brings the chip to its end.</source>
        <translation>La commande suit la réinitialisation qui met la puce dans son état final.</translation>
    </message>
    <message>
        <source>The command is on four lines, and nothing before it sets or checks the quad-enable bit.</source>
        <translation>La commande utilise quatre lignes, et rien avant elle n’active ni ne vérifie le bit quad enable.</translation>
    </message>
    <message>
        <source>%1 us are waited for instead of asking whether the chip is ready.</source>
        <translation>%1 µs sont attendues au lieu de demander si la puce est prête.</translation>
    </message>
    <message>
        <source>Nothing waits until the chip is ready: it ignores the commands that follow.</source>
        <translation>Rien n’attend que la puce soit prête&#xa0;: elle ignore les commandes suivantes.</translation>
    </message>
    <message>
        <source>There is no write enable before it: the chip ignores the command.</source>
        <translation>Aucune autorisation d’écriture ne précède&#xa0;: la puce ignore la commande.</translation>
    </message>
    <message>
        <source>The command has no address, but the action sends one.</source>
        <translation>La commande n’a pas d’adresse, mais l’action en envoie une.</translation>
    </message>
    <message>
        <source>The command has an address, but the action sends none.</source>
        <translation>La commande a une adresse, mais l’action n’en envoie pas.</translation>
    </message>
    <message>
        <source>The command always has four address bytes, but the action sends three.</source>
        <translation>La commande a toujours quatre octets d’adresse, mais l’action en envoie trois.</translation>
    </message>
    <message>
        <source>The action sends four address bytes, but nothing before it enters 4-byte addressing.</source>
        <translation>L’action envoie quatre octets d’adresse, mais rien avant elle n’entre dans l’adressage sur 4 octets.</translation>
    </message>
    <message>
        <source>The action sends three address bytes, but 4-byte addressing was entered before.</source>
        <translation>L’action envoie trois octets d’adresse, mais l’adressage sur 4 octets a commencé avant.</translation>
    </message>
    <message>
        <source>Template name</source>
        <translation>Nom du modèle</translation>
    </message>
    <message>
        <source>Flow template</source>
        <translation>Modèle de flot</translation>
    </message>
</context>
</TS>
