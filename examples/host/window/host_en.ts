<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>host::ExportDialog</name>
    <message numerus="yes">
        <source>%n file(s) will be written.</source>
        <translation>
            <numerusform>%n file will be written.</numerusform>
            <numerusform>%n files will be written.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them exist(s) already.</source>
        <translation>
            <numerusform>%n of them exists already.</numerusform>
            <numerusform>%n of them exist already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Some systems refuse %n of the names.</source>
        <translation>
            <numerusform>Some systems refuse %n of the names.</numerusform>
            <numerusform>Some systems refuse %n of the names.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::ManuscriptWindow</name>
    <message numerus="yes">
        <source>The export ended after %n file(s).</source>
        <translation>
            <numerusform>The export ended after %n file.</numerusform>
            <numerusform>The export ended after %n files.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The export was aborted after %n file(s).</source>
        <translation>
            <numerusform>The export was aborted after %n file.</numerusform>
            <numerusform>The export was aborted after %n files.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) exported to “%1”.</source>
        <translation>
            <numerusform>%n file exported to “%1”.</numerusform>
            <numerusform>%n files exported to “%1”.</numerusform>
        </translation>
    </message>
</context>
</TS>
