<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>HtmlPanel</name>
    <message>
        <source>Web Pages</source>
        <translation>Webseiten</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>S&amp;prache:</translation>
    </message>
    <message>
        <source>A language tag such as en or de-CH</source>
        <translation>Ein Sprachkürzel wie en oder de-CH</translation>
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
        <source>&amp;Font:</source>
        <translation>Schri&amp;ft:</translation>
    </message>
    <message>
        <source>&amp;Page</source>
        <translation>Se&amp;ite</translation>
    </message>
    <message>
        <source>Pape&amp;r:</source>
        <translation>Pa&amp;pier:</translation>
    </message>
    <message>
        <source>Other size</source>
        <translation>Andere Größe</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>US Letter</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>US Legal</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>Ränder</translation>
    </message>
    <message>
        <source>T&amp;op:</source>
        <translation>&amp;Oben:</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Oberer Rand</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>&amp;Unten:</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>Unterer Rand</translation>
    </message>
    <message>
        <source>Le&amp;ft:</source>
        <translation>&amp;Links:</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Rig&amp;ht:</source>
        <translation>&amp;Rechts:</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Rechter Rand</translation>
    </message>
    <message>
        <source>Para&amp;graph Styles</source>
        <translation>&amp;Absatzstile</translation>
    </message>
    <message>
        <source>A paragraph that begins with the mark becomes the element. A relaxed mark needs no blank behind it.</source>
        <translation>Ein Absatz, der mit der Marke beginnt, wird zum Element. Eine lockere Marke braucht kein Leerzeichen hinter sich.</translation>
    </message>
    <message>
        <source>Paragraph styles</source>
        <translation>Absatzstile</translation>
    </message>
    <message>
        <source>Name
Element
Mark
Relaxed
Attribute</source>
        <translation>Name
Element
Marke
Locker
Attribut</translation>
    </message>
    <message>
        <source>&amp;Inline Styles</source>
        <translation>&amp;Zeichenstile</translation>
    </message>
    <message>
        <source>Text between the two tags becomes the element.</source>
        <translation>Text zwischen den beiden Auszeichnungen wird zum Element.</translation>
    </message>
    <message>
        <source>Inline styles</source>
        <translation>Zeichenstile</translation>
    </message>
    <message>
        <source>Name
Element
Start
End
Attribute</source>
        <translation>Name
Element
Anfang
Ende
Attribut</translation>
    </message>
    <message>
        <source>&amp;Markers</source>
        <translation>&amp;Marken</translation>
    </message>
    <message>
        <source>A paragraph that is the mark alone becomes the element.</source>
        <translation>Ein Absatz, der nur aus der Marke besteht, wird zum Element.</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marken</translation>
    </message>
    <message>
        <source>Name
Element
Mark</source>
        <translation>Name
Element
Marke</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Web Pages (HTML)</source>
        <comment>org.orvane.html</comment>
        <translation>Webseiten (HTML)</translation>
    </message>
</context>
</TS>
