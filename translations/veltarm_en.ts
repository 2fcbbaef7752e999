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
<context>
    <name>VelshopBillWords</name>
    <message>
        <source>Auf diesem Weg nimmt der Shop keine Bestellungen an</source>
        <translation>The shop takes no orders this way</translation>
    </message>
    <message>
        <source>Auf diesem Weg kann so nicht bezahlt werden</source>
        <translation>An order like this can&apos;t be paid that way</translation>
    </message>
    <message>
        <source>nicht mehr lieferbar</source>
        <translation>no longer available</translation>
    </message>
    <message>
        <source>auf diesem Weg ohne Preis</source>
        <translation>has no price for this way of ordering</translation>
    </message>
    <message>
        <source>nicht als Express erhältlich</source>
        <translation>not available by express</translation>
    </message>
    <message>
        <source>%1 Stück, höchstens %2 können bestellt werden</source>
        <translation>%1 pieces, at most %2 can be ordered</translation>
    </message>
    <message>
        <source>kann nicht bestellt werden</source>
        <translation>can&apos;t be ordered</translation>
    </message>
    <message>
        <source>d. MMMM yyyy</source>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>über das Internet</source>
        <translation>on the internet</translation>
    </message>
    <message>
        <source>auf CD</source>
        <translation>on CD</translation>
    </message>
    <message>
        <source>am Bestellgerät in der Filiale</source>
        <translation>at the order terminal in the shop</translation>
    </message>
    <message>
        <source>Abholung in der Filiale</source>
        <translation>pick-up at the shop</translation>
    </message>
    <message>
        <source>per Post</source>
        <translation>by mail</translation>
    </message>
    <message>
        <source>gleich zum Mitnehmen</source>
        <translation>to take away at once</translation>
    </message>
    <message>
        <source>Express</source>
        <translation>Express</translation>
    </message>
    <message>
        <source>Express, zweite Art</source>
        <translation>Express, second kind</translation>
    </message>
    <message>
        <source>%1 (nicht gültig)</source>
        <translation>%1 (not valid)</translation>
    </message>
    <message>
        <source>%1 (zählt bei dieser Bestellung nicht)</source>
        <translation>%1 (doesn&apos;t count for this order)</translation>
    </message>
    <message>
        <source>%1 (Rest: %2)</source>
        <translation>%1 (%2 left)</translation>
    </message>
    <message>
        <source>Paket mit %1 Stück</source>
        <translation>package of %1 pieces</translation>
    </message>
    <message>
        <source>Mengenpreis</source>
        <translation>quantity price</translation>
    </message>
    <message>
        <source>Angebot</source>
        <translation>offer</translation>
    </message>
    <message>
        <source>Lieferzeit 1 Tag</source>
        <translation>delivery in 1 day</translation>
    </message>
    <message>
        <source>Lieferzeit %1 Tage</source>
        <translation>delivery in %1 days</translation>
    </message>
    <message>
        <source>Artikel</source>
        <translation>Article</translation>
    </message>
    <message>
        <source>Waren</source>
        <translation>Goods</translation>
    </message>
    <message>
        <source>Versand</source>
        <translation>Shipping</translation>
    </message>
    <message>
        <source>Zahlungsgebühr</source>
        <translation>Payment fee</translation>
    </message>
    <message>
        <source>Gutschein</source>
        <translation>Coupon</translation>
    </message>
    <message>
        <source>Zu zahlen</source>
        <translation>To pay</translation>
    </message>
    <message>
        <source>Bestellung</source>
        <translation>Order</translation>
    </message>
    <message>
        <source>Bestellt</source>
        <translation>Ordered</translation>
    </message>
    <message>
        <source>Lieferung</source>
        <translation>Delivery</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Zahlung</source>
        <translation>Payment</translation>
    </message>
    <message>
        <source>Stück</source>
        <translation>Pieces</translation>
    </message>
    <message>
        <source>Einzelpreis</source>
        <translation>Unit price</translation>
    </message>
    <message>
        <source>Betrag</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>Gesamte Bestellung</source>
        <translation>Total of the order</translation>
    </message>
    <message>
        <source>Diese Bestellung kann so nicht aufgegeben werden.</source>
        <translation>This order can&apos;t be placed as it is.</translation>
    </message>
</context>
</TS>
