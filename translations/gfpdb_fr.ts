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
    <message>
        <source>an unpaired surrogate is not a character</source>
        <translation>un demi-codet isolé n’est pas un caractère</translation>
    </message>
    <message>
        <source>the name %1 occurs twice</source>
        <translation>le nom %1 apparaît deux fois</translation>
    </message>
    <message>
        <source>values are nested too deeply</source>
        <translation>les valeurs sont imbriquées trop profondément</translation>
    </message>
    <message>
        <source>there is text after the end</source>
        <translation>il y a du texte après la fin</translation>
    </message>
    <message>
        <source>an object needs a name in double quotes here</source>
        <translation>un objet a besoin ici d’un nom entre guillemets doubles</translation>
    </message>
    <message>
        <source>&quot;:&quot; is missing after %1</source>
        <translation>il manque «&#xa0;:&#xa0;» après %1</translation>
    </message>
    <message>
        <source>an object needs &quot;,&quot; or &quot;}&quot; here</source>
        <translation>un objet a besoin ici de «&#xa0;,&#xa0;» ou de «&#xa0;}&#xa0;»</translation>
    </message>
    <message>
        <source>a list needs &quot;,&quot; or &quot;]&quot; here</source>
        <translation>une liste a besoin ici de «&#xa0;,&#xa0;» ou de «&#xa0;]&#xa0;»</translation>
    </message>
    <message>
        <source>\u needs four hexadecimal digits</source>
        <translation>\u a besoin de quatre chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>a string is not terminated</source>
        <translation>une chaîne n’est pas terminée</translation>
    </message>
    <message>
        <source>there is no such escape</source>
        <translation>cette séquence d’échappement n’existe pas</translation>
    </message>
    <message>
        <source>a string has a control character or a line break in it</source>
        <translation>une chaîne contient un caractère de contrôle ou un saut de ligne</translation>
    </message>
    <message>
        <source>a string is not UTF-8</source>
        <translation>une chaîne n’est pas en UTF-8</translation>
    </message>
    <message>
        <source>a number is too large</source>
        <translation>un nombre est trop grand</translation>
    </message>
    <message>
        <source>a value was expected</source>
        <translation>une valeur était attendue</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ou false</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>une chaîne</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>une liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objet</translation>
    </message>
    <message>
        <source>A string was expected, but this is %1.</source>
        <translation>Une chaîne était attendue, mais ceci est&#xa0;: %1.</translation>
    </message>
    <message>
        <source>A list was expected, but this is %1.</source>
        <translation>Une liste était attendue, mais ceci est&#xa0;: %1.</translation>
    </message>
    <message>
        <source>An object was expected, but this is %1.</source>
        <translation>Un objet était attendu, mais ceci est&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 is not known here. Allowed: %2.</source>
        <translation>%1 n’est pas connu ici. Autorisé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1 manque.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>Le catalogue %1 ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>device %1: %2</source>
        <translation>composant %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>stored template %1: %2</source>
        <translation>modèle enregistré %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The device %1 is already in %2.</source>
        <translation>Le composant %1 est déjà dans %2.</translation>
    </message>
    <message>
        <source>The stored template %1 is already in %2.</source>
        <translation>Le modèle enregistré %1 est déjà dans %2.</translation>
    </message>
    <message>
        <source>The device %1 exists with different content: --replace replaces it.</source>
        <translation>Le composant %1 existe avec un autre contenu&#xa0;: --replace le remplace.</translation>
    </message>
    <message>
        <source>The stored template %1 exists with different content: --replace replaces it.</source>
        <translation>Le modèle enregistré %1 existe avec un autre contenu&#xa0;: --replace le remplace.</translation>
    </message>
    <message>
        <source>The name of the device %1 is that of a stored template.</source>
        <translation>Le nom du composant %1 est celui d’un modèle enregistré.</translation>
    </message>
    <message>
        <source>The name of the stored template %1 is that of a device.</source>
        <translation>Le nom du modèle enregistré %1 est celui d’un composant.</translation>
    </message>
    <message>
        <source>The column is missing.</source>
        <translation>La colonne manque.</translation>
    </message>
    <message>
        <source>The column is not known. Allowed: %1.</source>
        <translation>La colonne n’est pas connue. Autorisé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The column occurs twice.</source>
        <translation>La colonne apparaît deux fois.</translation>
    </message>
    <message>
        <source>A quote that opens in this row is never closed.</source>
        <translation>Un guillemet ouvert dans cette ligne n’est jamais fermé.</translation>
    </message>
    <message>
        <source>The row has 1 cell, the line of column names has %1.</source>
        <translation>La ligne a 1 cellule, celle des noms de colonnes en a %1.</translation>
    </message>
    <message>
        <source>The row has %1 cells, the line of column names has %2.</source>
        <translation>La ligne a %1 cellules, celle des noms de colonnes en a %2.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Le fichier ne peut pas être lu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>This is not valid JSON: %1.</source>
        <translation>Ceci n’est pas du JSON valide&#xa0;: %1.</translation>
    </message>
    <message>
        <source>This is not a file of records. Allowed: %1.</source>
        <translation>Ceci n’est pas un fichier d’enregistrements. Autorisé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>This version of the format is not known. Allowed: %1.</source>
        <translation>Cette version du format n’est pas connue. Autorisé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>Le texte n’est pas en UTF-8.</translation>
    </message>
    <message>
        <source>A whole number or null was expected, but this is %1.</source>
        <translation>Un nombre entier ou null était attendu, mais ceci est&#xa0;: %1.</translation>
    </message>
    <message>
        <source>device family</source>
        <translation>famille de composants</translation>
    </message>
    <message>
        <source>configuration mode</source>
        <translation>mode de configuration</translation>
    </message>
    <message>
        <source>single-I/O flow</source>
        <translation>flot Single I/O</translation>
    </message>
    <message>
        <source>quad-I/O flow</source>
        <translation>flot Quad I/O</translation>
    </message>
    <message>
        <source>This operation occurs twice.</source>
        <translation>Cette opération apparaît deux fois.</translation>
    </message>
    <message>
        <source>There is no such operation. Allowed: %1.</source>
        <translation>Cette opération n’existe pas. Autorisé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>There is no such action. Allowed: %1.</source>
        <translation>Cette action n’existe pas. Autorisé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>Les flots de %1 ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: the copy gets these, and its flow has the %2 of %3.</source>
        <translation>Un composant a au plus %1 cycles dummy Single I/O&#xa0;: la copie les reçoit, et son flot a les %2 de %3.</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no serial flash devices.</source>
        <translation>Le mode de configuration %1 n’a pas de composants flash série.</translation>
    </message>
    <message>
        <source>page size</source>
        <translation>taille de page</translation>
    </message>
    <message>
        <source>quad-I/O dummy clocks</source>
        <translation>cycles dummy Quad I/O</translation>
    </message>
    <message>
        <source>%1: %2 in the list, %3 by %4</source>
        <translation>%1&#xa0;: %2 dans la liste, %3 selon %4</translation>
    </message>
    <message>
        <source>address bytes</source>
        <translation>octets d’adresse</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>erase by %1</source>
        <translation>effacement par %1</translation>
    </message>
    <message>
        <source>not</source>
        <translation>non</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>réservé</translation>
    </message>
    <message>
        <source>quad enable</source>
        <translation>activation Quad</translation>
    </message>
    <message>
        <source>basic table: %1 double words in read-outs of this part, %2 here</source>
        <translation>table de base&#xa0;: %1 doubles mots dans les lectures de ce composant, ici %2</translation>
    </message>
    <message>
        <source>4-4-4 read: in read-outs of this part, but not here</source>
        <translation>lecture 4-4-4&#xa0;: dans les lectures de ce composant, mais pas ici</translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 n’est pas un nombre.</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3 are allowed.</source>
        <translation>%1 est hors limites&#xa0;: de %2 à %3 sont autorisés.</translation>
    </message>
    <message>
        <source>%1 is more than 32Gb.</source>
        <translation>%1 dépasse 32Gb.</translation>
    </message>
    <message>
        <source>%1 is not a density such as 128Mb.</source>
        <translation>%1 n’est pas une capacité telle que 128Mb.</translation>
    </message>
    <message>
        <source>%1 is neither an erase command such as %2 nor %3.</source>
        <translation>%1 n’est ni une commande d’effacement telle que %2 ni %3.</translation>
    </message>
    <message>
        <source>%1 is not a power of two.</source>
        <translation>%1 n’est pas une puissance de deux.</translation>
    </message>
    <message>
        <source>There is no value %1.</source>
        <translation>La valeur %1 n’existe pas.</translation>
    </message>
    <message>
        <source>The value %1 is missing: enter it.</source>
        <translation>La valeur %1 manque&#xa0;: saisissez-la.</translation>
    </message>
    <message>
        <source>The number of dies, %1, does not divide the density.</source>
        <translation>Le nombre de dies, %1, ne divise pas la capacité.</translation>
    </message>
    <message>
        <source>The erase command %1 does not divide the density.</source>
        <translation>La commande d’effacement %1 ne divise pas la capacité.</translation>
    </message>
    <message>
        <source>The density %1 (%2) is not what the ID usually stands for, which is %3.</source>
        <translation>La capacité %1 (%2) n’est pas celle que l’ID indique d’habitude&#xa0;: %3.</translation>
    </message>
    <message>
        <source>SFDP DW2 says a density that no device can have: %1.</source>
        <translation>SFDP DW2 indique une capacité qu’aucun composant ne peut avoir&#xa0;: %1.</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: it gets these, and its flow has %2.</source>
        <translation>Un composant a au plus %1 cycles dummy Single I/O&#xa0;: il les reçoit, et son flot en a %2.</translation>
    </message>
    <message>
        <source>The chip has a table of the maker %1, and its ID is of the maker %2.</source>
        <translation>La puce a une table du fabricant %1, et son ID est du fabricant %2.</translation>
    </message>
    <message>
        <source>No listed part tells what the maker&apos;s parts have in common: usual commands are assumed.</source>
        <translation>Aucun composant de la liste ne dit ce que ceux du fabricant ont en commun&#xa0;: les commandes usuelles sont supposées.</translation>
    </message>
    <message>
        <source>Several listed parts have this ID: %1.</source>
        <translation>Plusieurs composants de la liste ont cet ID&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The commands have four address bytes, and nothing enters 4-byte addressing.</source>
        <translation>Les commandes ont quatre octets d’adresse, et rien n’active l’adressage sur 4 octets.</translation>
    </message>
    <message>
        <source>The commands have three address bytes, and the device is in 4-byte addressing.</source>
        <translation>Les commandes ont trois octets d’adresse, et le composant est en adressage sur 4 octets.</translation>
    </message>
    <message>
        <source>Three address bytes do not reach all of %1.</source>
        <translation>Trois octets d’adresse n’atteignent pas la totalité de %1.</translation>
    </message>
    <message>
        <source>SFDP DW1 lists three address bytes alone, which do not reach all of %1: four are taken.</source>
        <translation>SFDP DW1 n’indique que trois octets d’adresse, qui n’atteignent pas la totalité de %1&#xa0;: quatre sont pris.</translation>
    </message>
    <message>
        <source>SFDP DW16 lists every way into 4-byte addressing, and SFDP DW1 three address bytes: DW16 is ignored.</source>
        <translation>SFDP DW16 indique toutes les entrées en adressage sur 4 octets, et SFDP DW1 trois octets d’adresse&#xa0;: DW16 est ignoré.</translation>
    </message>
    <message>
        <source>SFDP DW16 lists no way into 4-byte addressing that a flow can take: %1 is taken.</source>
        <translation>SFDP DW16 n’indique aucune entrée en adressage sur 4 octets utilisable par un flot&#xa0;: %1 est pris.</translation>
    </message>
    <message>
        <source>SFDP has no page size: %1 is taken (%2).</source>
        <translation>SFDP n’a pas de taille de page&#xa0;: %1 est pris (%2).</translation>
    </message>
    <message>
        <source>SFDP DW11 has a page size that no flow can have: %1 is taken (%2).</source>
        <translation>SFDP DW11 a une taille de page qu’aucun flot ne peut avoir&#xa0;: %1 est pris (%2).</translation>
    </message>
    <message>
        <source>SFDP DW15 says with a reserved value how quad is enabled: look it up and enter it.</source>
        <translation>SFDP DW15 indique par une valeur réservée comment Quad s’active&#xa0;: cherchez-le et saisissez-le.</translation>
    </message>
    <message>
        <source>SFDP does not say how quad is enabled: %1 is taken (%2).</source>
        <translation>SFDP n’indique pas comment Quad s’active&#xa0;: %1 est pris (%2).</translation>
    </message>
    <message>
        <source>SFDP lists no read on four lines: the quad-I/O flow uses one.</source>
        <translation>SFDP n’indique aucune lecture sur quatre lignes&#xa0;: le flot Quad I/O en utilise une.</translation>
    </message>
    <message>
        <source>No erase command serves the whole part: the chip is erased at once.</source>
        <translation>Aucune commande d’effacement ne vaut pour tout le composant&#xa0;: la puce est effacée d’un coup.</translation>
    </message>
    <message>
        <source>The four bytes of each double word are in reverse order.</source>
        <translation>Les quatre octets de chaque double mot sont en ordre inverse.</translation>
    </message>
    <message>
        <source>The bytes do not begin with the signature &quot;SFDP&quot;.</source>
        <translation>Les octets ne commencent pas par la signature «&#xa0;SFDP&#xa0;».</translation>
    </message>
    <message>
        <source>The signature &quot;SFDP&quot; is at %1 and not at the start: bytes were added before it.</source>
        <translation>La signature «&#xa0;SFDP&#xa0;» est à %1 et non au début&#xa0;: des octets ont été ajoutés devant.</translation>
    </message>
    <message>
        <source>The read-out ends within the SFDP header.</source>
        <translation>La lecture se termine dans l’en-tête SFDP.</translation>
    </message>
    <message>
        <source>SFDP revision %1 is unknown: revisions 1.x can be read.</source>
        <translation>La révision SFDP %1 est inconnue&#xa0;: les révisions 1.x peuvent être lues.</translation>
    </message>
    <message>
        <source>%1 has the unknown revision %2: it is not read.</source>
        <translation>Révision %2 inconnue de cette table, qui n’est pas lue&#xa0;: %1.</translation>
    </message>
    <message>
        <source>There are %1 headers of %2: the one of revision %3 is taken.</source>
        <translation>En-têtes de cette table (%2)&#xa0;: %1. Celui de la révision %3 est pris.</translation>
    </message>
    <message>
        <source>The read-out ends within the parameter headers: %1 of %2 are there.</source>
        <translation>La lecture se termine dans les en-têtes de paramètres&#xa0;: %1 sur %2 sont là.</translation>
    </message>
    <message>
        <source>A table begins at %1: there is room for %2 parameter headers, not for %3.</source>
        <translation>Une table commence à %1&#xa0;: il y a place pour %2 en-têtes de paramètres, pas pour %3.</translation>
    </message>
    <message>
        <source>The parameter header at %1 is blank.</source>
        <translation>L’en-tête de paramètres à %1 est vide.</translation>
    </message>
    <message>
        <source>%1 begins at %2, within the headers: it is not read.</source>
        <translation>Cette table commence à %2, dans les en-têtes, et n’est pas lue&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>Cette table est vide&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 is not in the read-out: it begins at %2, and the read-out ends at %3.</source>
        <translation>Cette table n’est pas dans la lecture&#xa0;: %1. Elle commence à %2, et la lecture se termine à %3.</translation>
    </message>
    <message>
        <source>The read-out ends within %1: %2 of %3 double words are there.</source>
        <translation>La lecture se termine dans cette table&#xa0;: %1. %2 doubles mots sur %3 sont là.</translation>
    </message>
    <message>
        <source>%1 begins at %2, which is not a multiple of 4.</source>
        <translation>Cette table commence à %2, qui n’est pas un multiple de 4&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 and %2 overlap.</source>
        <translation>Ces tables se chevauchent&#xa0;: %1, %2.</translation>
    </message>
    <message>
        <source>The bytes at %1 are in no table: they are not read.</source>
        <translation>Les octets à %1 ne sont dans aucune table&#xa0;: ils ne sont pas lus.</translation>
    </message>
    <message>
        <source>There is no basic table.</source>
        <translation>Il n’y a pas de table de base.</translation>
    </message>
    <message>
        <source>The basic table is blank.</source>
        <translation>La table de base est vide.</translation>
    </message>
    <message>
        <source>The basic table has %1 double words: %2 belong to its revision %3.</source>
        <translation>La table de base a %1 doubles mots&#xa0;: %2 vont avec sa révision %3.</translation>
    </message>
    <message>
        <source>SFDP DW%1 has zeros where every part has ones: bytes may be missing or shifted.</source>
        <translation>SFDP DW%1 a des zéros là où tout composant a des uns&#xa0;: des octets peuvent manquer ou être décalés.</translation>
    </message>
    <message>
        <source>SFDP DW2 says no density that a part can have: %1.</source>
        <translation>SFDP DW2 n’indique pas de capacité qu’un composant puisse avoir&#xa0;: %1.</translation>
    </message>
    <message>
        <source>SFDP DW1 says with a reserved value how many address bytes there are.</source>
        <translation>SFDP DW1 indique par une valeur réservée le nombre d’octets d’adresse.</translation>
    </message>
    <message>
        <source>SFDP DW%1 lists the %2 read, and DW%3 has no command for it.</source>
        <translation>SFDP DW%1 indique la lecture %2, et DW%3 n’a pas de commande pour elle.</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 has no command: it is left out.</source>
        <translation>SFDP DW%1&#xa0;: le type d’effacement %2 n’a pas de commande&#xa0;: il est omis.</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 erases 2^%3 bytes, which is too much: it is left out.</source>
        <translation>SFDP DW%1&#xa0;: le type d’effacement %2 efface 2^%3 octets, ce qui est trop&#xa0;: il est omis.</translation>
    </message>
    <message>
        <source>SFDP DW1 erases 4 KiB by %1, which no erase type does.</source>
        <translation>SFDP DW1 efface 4 Kio par %1, ce que ne fait aucun type d’effacement.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions is blank.</source>
        <translation>La table des instructions sur 4 octets est vide.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions has no erase commands.</source>
        <translation>La table des instructions sur 4 octets n’a pas de commandes d’effacement.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1, which the basic table does not have.</source>
        <translation>La table des instructions sur 4 octets indique le type d’effacement %1, que la table de base n’a pas.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1 and has no command for it.</source>
        <translation>La table des instructions sur 4 octets indique le type d’effacement %1 et n’a pas de commande pour lui.</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 come to %2 bytes, and the part has %3.</source>
        <translation>Les secteurs de la carte des secteurs %1 font %2 octets, et le composant en a %3.</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 are erased by types that the basic table does not have.</source>
        <translation>Les secteurs de la carte des secteurs %1 s’effacent par des types que la table de base n’a pas.</translation>
    </message>
    <message>
        <source>The sector map has no end.</source>
        <translation>La carte des secteurs n’a pas de fin.</translation>
    </message>
    <message>
        <source>the basic table</source>
        <translation>table de base</translation>
    </message>
    <message>
        <source>the sector map</source>
        <translation>carte des secteurs</translation>
    </message>
    <message>
        <source>the table of 4-byte instructions</source>
        <translation>table des instructions sur 4 octets</translation>
    </message>
    <message>
        <source>the table %1</source>
        <translation>table %1</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was replaced by another one while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>La base de données %1 du serveur %2 a été remplacée par une autre pendant son utilisation. Rien n’a été modifié&#xa0;: regardez les composants présents maintenant, puis réessayez.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is another one now.</source>
        <translation>La base de données %1 du serveur %2 en est maintenant une autre.</translation>
    </message>
    <message>
        <source>the certificates %1 are not a file</source>
        <translation>les certificats %1 ne sont pas un fichier</translation>
    </message>
    <message>
        <source>no reason</source>
        <translation>aucune raison</translation>
    </message>
    <message>
        <source>the connection is closed</source>
        <translation>la connexion est fermée</translation>
    </message>
    <message>
        <source>The server does not copy.</source>
        <translation>Le serveur ne copie pas.</translation>
    </message>
    <message>
        <source>%1 is not a setting</source>
        <translation>%1 n’est pas un réglage</translation>
    </message>
    <message>
        <source>passwords do not belong into it: put them into the file .pgpass in your home directory</source>
        <translation>les mots de passe n’ont rien à y faire&#xa0;: mettez-les dans le fichier .pgpass de votre répertoire personnel</translation>
    </message>
    <message>
        <source>%1 is not a setting. There are: %2</source>
        <translation>%1 n’est pas un réglage. Il y a&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 y est deux fois</translation>
    </message>
    <message>
        <source>%1 cannot be %2</source>
        <translation>%1 ne peut pas être %2</translation>
    </message>
    <message>
        <source>it does not begin with %1</source>
        <translation>il ne commence pas par %1</translation>
    </message>
    <message>
        <source>it has no settings</source>
        <translation>il n’a pas de réglages</translation>
    </message>
    <message>
        <source>it names too many hosts</source>
        <translation>trop d’hôtes sont nommés</translation>
    </message>
    <message>
        <source>&quot;port&quot; must be one for all hosts, or one for each</source>
        <translation>«&#xa0;port&#xa0;» doit être unique pour tous les hôtes, ou un pour chacun</translation>
    </message>
    <message>
        <source>it does not say which &quot;database&quot; is meant</source>
        <translation>il ne dit pas quelle «&#xa0;database&#xa0;» est visée</translation>
    </message>
    <message>
        <source>The settings of the server cannot be used: %1.</source>
        <translation>Les réglages du serveur ne peuvent pas être utilisés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be used: %2.</source>
        <translation>Le fichier %1 ne peut pas être utilisé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The directory has the database %1: name the server in another directory, and copy the records there with &quot;gfpdb copy&quot;.</source>
        <translation>Le répertoire contient la base de données %1&#xa0;: nommez le serveur dans un autre répertoire et copiez-y les enregistrements avec «&#xa0;gfpdb copy&#xa0;».</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>Le fichier %1 ne peut pas être écrit&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The database cannot keep %1 of %2: it is not a text in UTF-8, or has the character NUL.</source>
        <translation>La base de données ne peut pas conserver %1 de %2&#xa0;: ce n’est pas un texte en UTF-8, ou il contient le caractère NUL.</translation>
    </message>
    <message>
        <source>The device %1 is being changed by another program: try again.</source>
        <translation>Le composant %1 est en cours de modification par un autre programme&#xa0;: réessayez.</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>L’importation a été annulée.</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>il dépasse %1</translation>
    </message>
    <message>
        <source>The command is on four lines, and a write of the status registers before it clears the quad-enable bit.</source>
        <translation>La commande utilise quatre lignes, et avant elle une écriture des registres d’état efface le bit quad enable.</translation>
    </message>
</context>
</TS>
