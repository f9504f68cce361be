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
        <source>Items that exist already: %1 of %2</source>
        <extracomment>Numbers of files and folders.</extracomment>
        <translation>Éléments déjà présents : %1 sur %2</translation>
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
    <name>KZFontNameTextField</name>
    <message>
        <source>Double-click or press Space to choose a font</source>
        <extracomment>Tool tip of a field that shows a font.</extracomment>
        <translation>Double-cliquez ou appuyez sur la barre d’espace pour choisir une police</translation>
    </message>
    <message>
        <source>Choose a font</source>
        <extracomment>What a screen reader calls a button, and its tool tip.</extracomment>
        <translation>Choisir une police</translation>
    </message>
    <message>
        <source>not installed</source>
        <extracomment>Stands in a field, behind the name of a font.</extracomment>
        <translation>non installée</translation>
    </message>
    <message>
        <source>This font is not installed.</source>
        <extracomment>In a tool tip.</extracomment>
        <translation>Cette police n’est pas installée.</translation>
    </message>
</context>
<context>
    <name>KZPageView</name>
    <message>
        <source>Page preview</source>
        <extracomment>What a screen reader calls the picture of a page.</extracomment>
        <translation>Aperçu de la page</translation>
    </message>
    <message>
        <source>Page %1; margins: top %2, left %3, right %4, bottom %5</source>
        <extracomment>Read out by a screen reader. %1 is the size of the paper as in &quot;21.00 cm x 29.70 cm&quot;, the others are lengths as in &quot;2.54 cm&quot;.</extracomment>
        <translation>Page %1 ; marges : haut %2, gauche %3, droite %4, bas %5</translation>
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
<context>
    <name>windowing::DictionaryTable</name>
    <message>
        <source>&amp;Add</source>
        <extracomment>A button below a table: adds a row.</extracomment>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>&amp;Descendre</translation>
    </message>
</context>
<context>
    <name>windowing::FontPanel</name>
    <message>
        <source>Fonts</source>
        <extracomment>Title of the panel in which the user chooses a font.</extracomment>
        <translation>Polices</translation>
    </message>
    <message>
        <source>Sample</source>
        <extracomment>What a screen reader calls the sample of the chosen font.</extracomment>
        <translation>Exemple</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>&amp;Famille :</translation>
    </message>
    <message>
        <source>&amp;Style:</source>
        <extracomment>Of a font, such as bold.</extracomment>
        <translation>&amp;Style :</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <extracomment>Of a font.</extracomment>
        <translation>&amp;Taille :</translation>
    </message>
    <message>
        <source> pt</source>
        <extracomment>Points, after the size of a font.</extracomment>
        <translation> pt</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>So&amp;uligné</translation>
    </message>
    <message>
        <source>Stri&amp;kethrough</source>
        <translation>&amp;Barré</translation>
    </message>
    <message>
        <source>&amp;Text color:</source>
        <extracomment>Label of a check box; the color is beside it.</extracomment>
        <translation>Couleur du te&amp;xte :</translation>
    </message>
    <message>
        <source>Choose the text color</source>
        <extracomment>What a screen reader calls a button, and title of what it opens.</extracomment>
        <translation>Choisir la couleur du texte</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <extracomment>Label of a check box; the background color is beside it.</extracomment>
        <translation>&amp;Arrière-plan :</translation>
    </message>
    <message>
        <source>Choose the background color</source>
        <extracomment>What a screen reader calls a button, and title of what it opens.</extracomment>
        <translation>Choisir la couleur d’arrière-plan</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <extracomment>A button: takes back the last change.</extracomment>
        <translation>Annule&amp;r</translation>
    </message>
    <message>
        <source>Takes back the last change</source>
        <extracomment>Tool tip of a button.</extracomment>
        <translation>Annule la dernière modification</translation>
    </message>
    <message>
        <source>The font “%1” is not installed. Another one stands in for it here.</source>
        <extracomment>%1 is the name of a family of fonts.</extracomment>
        <translation>La police « %1 » n’est pas installée. Une autre la remplace ici.</translation>
    </message>
</context>
<context>
    <name>windowing::TokenEditor</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Insert Token</source>
        <extracomment>An entry of a menu, with a menu of its own that lists the tokens. A token stands for something that is put in later, such as the name of a document.</extracomment>
        <translation>&amp;Insérer une variable</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <extracomment>What a screen reader calls the button that opens a menu with the tokens, and its tool tip.</extracomment>
        <translation>Insérer une variable</translation>
    </message>
    <message>
        <source>No Tokens</source>
        <extracomment>Stands in that menu in place of tokens.</extracomment>
        <translation>Aucune variable</translation>
    </message>
</context>
</TS>
