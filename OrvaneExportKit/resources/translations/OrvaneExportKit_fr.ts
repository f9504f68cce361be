<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en_US">
<context>
    <name>ExistingFiles</name>
    <message>
        <source>Replace Existing Files?</source>
        <translation>Remplacer les fichiers existants ?</translation>
    </message>
    <message>
        <source>The folder “%@” already contains the items below. If you replace them, their current contents are lost.</source>
        <extracomment>%@ is the name of a folder.</extracomment>
        <translation>Le dossier « %@ » contient déjà les éléments ci-dessous. Si vous les remplacez, leur contenu actuel sera perdu.</translation>
    </message>
    <message>
        <source>Existing items</source>
        <translation>Éléments existants</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opier</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Export</source>
        <translation>Exportation</translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Progression de l’exportation</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Interrompre</translation>
    </message>
</context>
<context>
    <name>FileNameChecks</name>
    <message>
        <source>The name is empty.</source>
        <translation>Le nom est vide.</translation>
    </message>
    <message>
        <source>The name holds a control character.</source>
        <translation>Le nom contient un caractère de contrôle.</translation>
    </message>
    <message>
        <source>The name holds the character %1, which Windows reserves.</source>
        <extracomment>%1 is one character.</extracomment>
        <translation>Le nom contient le caractère %1, réservé par Windows.</translation>
    </message>
    <message>
        <source>The name stands for a device on Windows.</source>
        <translation>Le nom désigne un périphérique sous Windows.</translation>
    </message>
    <message>
        <source>The name ends with a dot or a blank.</source>
        <translation>Le nom se termine par un point ou un espace.</translation>
    </message>
    <message>
        <source>The name is longer than 255 bytes.</source>
        <translation>Le nom dépasse 255 octets.</translation>
    </message>
    <message>
        <source>%1 documents would get this name.</source>
        <extracomment>%1 is a number, 2 or more.</extracomment>
        <translation>%1 documents recevraient ce nom.</translation>
    </message>
    <message>
        <source>A folder with this name exists.</source>
        <translation>Un dossier portant ce nom existe déjà.</translation>
    </message>
    <message>
        <source>A file with this name exists.</source>
        <translation>Un fichier portant ce nom existe déjà.</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Level</source>
        <extracomment>Stands before the number of an outline level, as in &quot;Level 2 (##)&quot;.</extracomment>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>ProcDoc</source>
        <extracomment>&quot;Processing document&quot;: stands in the progress sheet before a colon and the document&apos;s name.</extracomment>
        <translation>Traitement du document</translation>
    </message>
</context>
</TS>
