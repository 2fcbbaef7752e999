<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>QObject</name>
    <message>
        <source>Standardproduktion und Standardversand</source>
        <translation>Standard production and standard shipping</translation>
    </message>
    <message>
        <source>unbekannter Expresstyp</source>
        <translation>unknown express type</translation>
    </message>
    <message>
        <source>Undefiniert</source>
        <translation>Undefined</translation>
    </message>
    <message>
        <source> (nicht mehr lieferbar)</source>
        <translation> (no longer available)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>VelOrderingDetails</name>
    <message>
        <source>%1 Stück</source>
        <translation>%1 pcs</translation>
    </message>
    <message>
        <source>%1-Stück-Paket %2</source>
        <translation>Package of %1 %2</translation>
    </message>
</context>
</TS>
