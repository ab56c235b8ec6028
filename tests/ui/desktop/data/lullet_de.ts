<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- A few German messages for tst_translations, not the program's translation. -->
<TS version="2.1" language="de">
<context>
    <name>Segment</name>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message numerus="yes">
        <source>In %n days</source>
        <translation>
            <numerusform>In %n Tag</numerusform>
            <numerusform>In %n Tagen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogueEntries</name>
    <message>
        <source>Tea break</source>
        <translation>Teepause</translation>
    </message>
</context>
</TS>
