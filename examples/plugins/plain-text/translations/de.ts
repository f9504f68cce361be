<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>PlainTextPanel</name>
    <message>
        <source>Plain Text</source>
        <translation>Nur Text</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Line &amp;length:</source>
        <translation>Zeilen&amp;länge:</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Unbegrenzt</translation>
    </message>
    <message>
        <source> characters</source>
        <translation> Zeichen</translation>
    </message>
    <message>
        <source>&amp;Tabs at line starts:</source>
        <translation>&amp;Tabs am Zeilenanfang:</translation>
    </message>
    <message>
        <source>Other number of blanks</source>
        <translation>Andere Zahl von Leerzeichen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>1 blank</source>
        <translation>1 Leerzeichen</translation>
    </message>
    <message>
        <source>2 blanks</source>
        <translation>2 Leerzeichen</translation>
    </message>
    <message>
        <source>3 blanks</source>
        <translation>3 Leerzeichen</translation>
    </message>
    <message>
        <source>4 blanks</source>
        <translation>4 Leerzeichen</translation>
    </message>
    <message>
        <source>5 blanks</source>
        <translation>5 Leerzeichen</translation>
    </message>
    <message>
        <source>6 blanks</source>
        <translation>6 Leerzeichen</translation>
    </message>
    <message>
        <source>7 blanks</source>
        <translation>7 Leerzeichen</translation>
    </message>
    <message>
        <source>8 blanks</source>
        <translation>8 Leerzeichen</translation>
    </message>
    <message>
        <source>Empty lines:</source>
        <translation>Leere Zeilen:</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Behalten</translation>
    </message>
    <message>
        <source>Keep empty lines</source>
        <translation>Leere Zeilen behalten</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Remove empty lines</source>
        <translation>Leere Zeilen entfernen</translation>
    </message>
    <message>
        <source>Typography</source>
        <translation>Typografie</translation>
    </message>
    <message>
        <source>&amp;Quotation marks:</source>
        <translation>A&amp;nführungszeichen:</translation>
    </message>
    <message>
        <source>Other language</source>
        <translation>Andere Sprache</translation>
    </message>
    <message>
        <source>Keep straight marks</source>
        <translation>Gerade Zeichen behalten</translation>
    </message>
    <message>
        <source>American English: “abc”</source>
        <translation>Amerikanisch: “abc”</translation>
    </message>
    <message>
        <source>British English: ‘abc’</source>
        <translation>Britisch: ‘abc’</translation>
    </message>
    <message>
        <source>Afrikaans: “abc”</source>
        <translation>Afrikaans: “abc”</translation>
    </message>
    <message>
        <source>French: «abc»</source>
        <translation>Französisch: «abc»</translation>
    </message>
    <message>
        <source>German: „abc“</source>
        <translation>Deutsch: „abc“</translation>
    </message>
    <message>
        <source>Italian: «abc»</source>
        <translation>Italienisch: «abc»</translation>
    </message>
    <message>
        <source>Japanese: 「abc」</source>
        <translation>Japanisch: 「abc」</translation>
    </message>
    <message>
        <source>Swedish: ”abc”</source>
        <translation>Schwedisch: ”abc”</translation>
    </message>
    <message>
        <source>Swiss German: »abc«</source>
        <translation>Schweizerisch: »abc«</translation>
    </message>
    <message>
        <source>&amp;Correct ellipses, apostrophes and dashes</source>
        <translation>Auslassungspunkte, Apostrophe und &amp;Striche berichtigen</translation>
    </message>
    <message>
        <source>Marks to Remove</source>
        <translation>Zu entfernende Marken</translation>
    </message>
    <message>
        <source>&amp;Inline tags:</source>
        <translation>&amp;Auszeichnungen im Text:</translation>
    </message>
    <message>
        <source>Pairs of start and stop tag, joined by a comma and separated by semicolons</source>
        <translation>Paare aus Anfang und Ende, verbunden durch ein Komma und getrennt durch Strichpunkte</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>&amp;Headings:</source>
        <translation>Übe&amp;rschriften:</translation>
    </message>
    <message>
        <source>Marks at the start of lines, separated by commas</source>
        <translation>Marken am Zeilenanfang, getrennt durch Kommas</translation>
    </message>
    <message>
        <source>&amp;Paragraphs:</source>
        <translation>Absät&amp;ze:</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Plain Text</source>
        <comment>org.orvane.plain-text</comment>
        <translation>Nur Text</translation>
    </message>
</context>
</TS>
