<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
  <context>
    <name>desk</name>
    <message>
      <source> (gone)</source>
      <translation> (nicht mehr da)</translation>
    </message>
    <message>
      <source> (stopped)</source>
      <translation> (angehalten)</translation>
    </message>
    <message>
      <source> (takes no jobs)</source>
      <translation> (nimmt keine Aufträge an)</translation>
    </message>
    <message>
      <source> g/m²</source>
      <translation> g/m²</translation>
    </message>
    <message>
      <source> points</source>
      <translation> Punkt</translation>
    </message>
    <message>
      <source>"None" and what begins with "Custom." mean something else to dialogs</source>
      <translation>„None“ und was mit „Custom.“ beginnt, bedeutet in Druckdialogen etwas anderes</translation>
    </message>
    <message>
      <source>"lpstat -e" lists the queues</source>
      <translation>„lpstat -e“ nennt die Warteschlangen</translation>
    </message>
    <message>
      <source>"lpstat -o" lists it, with 0 bytes if the document is missing</source>
      <translation>„lpstat -o“ nennt ihn, mit 0 Bytes, wenn das Dokument fehlt</translation>
    </message>
    <message>
      <source>"zarvo watermark list" shows them</source>
      <translation>"zarvo watermark list" zeigt sie</translation>
    </message>
    <message>
      <source>%1 "%2" was left out: the store has none of that name</source>
      <translation>%1 „%2“ wurde weggelassen: keines dieses Namens ist gespeichert</translation>
    </message>
    <message>
      <source>%1 (by itself: %2)</source>
      <translation>%1 (von sich aus: %2)</translation>
    </message>
    <message>
      <source>%1 (group)</source>
      <translation>%1 (Gruppe)</translation>
    </message>
    <message>
      <source>%1 (not stored here)</source>
      <translation>%1 (hier nicht gespeichert)</translation>
    </message>
    <message>
      <source>%1 and nothing else; choose another one</source>
      <translation>%1 und nichts sonst; wählen Sie eine andere</translation>
    </message>
    <message>
      <source>%1 cannot be read, or is damaged. "zarvo doctor" tells more.</source>
      <translation>%1 kann nicht gelesen werden oder ist beschädigt. Mehr sagt „zarvo doctor“.</translation>
    </message>
    <message>
      <source>%1 cannot be read.</source>
      <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
      <source>%1 cannot keep a PIN; choose JobType=Secure, or leave the PIN out</source>
      <translation>%1 kann keine PIN bewahren; wählen Sie einen vertraulichen Auftrag (JobType=Secure), oder lassen Sie die PIN weg</translation>
    </message>
    <message>
      <source>%1 copies</source>
      <translation>%1 Exemplare</translation>
    </message>
    <message>
      <source>%1 does not take "%2".</source>
      <translation>%1 nimmt „%2“ nicht an.</translation>
    </message>
    <message>
      <source>%1 g/m²</source>
      <translation>%1 g/m²</translation>
    </message>
    <message>
      <source>%1 is no group of settings; send the job type as ..d_JobType..n=NUMBER</source>
      <translation>%1 ist keine Gruppe von Einstellungen; senden Sie die Auftragsart als ..d_JobType..n=ZAHL</translation>
    </message>
    <message>
      <source>%1 is out of range</source>
      <translation>%1 liegt außerhalb des Bereichs</translation>
    </message>
    <message>
      <source>%1 job envelopes: the printer takes it for as many jobs and starts anew at each</source>
      <translation>%1 Auftragsumschläge: der Drucker hält das für ebenso viele Aufträge und beginnt bei jedem neu</translation>
    </message>
    <message>
      <source>%1 sheets after page %2</source>
      <translation>%1 Blätter nach Seite %2</translation>
    </message>
    <message>
      <source>%1, number %2: %3</source>
      <translation>%1, Nummer %2: %3</translation>
    </message>
    <message>
      <source>%1: house ticket "%2" does not let jobs change it, it was left as it is there</source>
      <translation>%1: Der Hausauftrag „%2“ lässt es von Aufträgen nicht ändern, es blieb, wie es dort ist</translation>
    </message>
    <message>
      <source>%1: the job type is no number; send it as ..d_JobType..n=NUMBER</source>
      <translation>%1: die Auftragsart ist keine Zahl; senden Sie sie als ..d_JobType..n=ZAHL</translation>
    </message>
    <message numerus="yes">
      <source>%n card(s) of the address book cannot be read: %1</source>
      <translation>
        <numerusform>%n Karte des Adressbuchs kann nicht gelesen werden: %1</numerusform>
        <numerusform>%n Karten des Adressbuchs können nicht gelesen werden: %1</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n copies</source>
      <translation>
        <numerusform>%n Exemplar</numerusform>
        <numerusform>%n Exemplare</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n page(s)</source>
      <translation>
        <numerusform>%n Seite</numerusform>
        <numerusform>%n Seiten</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n page(s) cannot be drawn; there may be no room left for temporary files.</source>
      <translation>
        <numerusform>%n Seite kann nicht gezeichnet werden; vielleicht ist kein Platz mehr für temporäre Dateien.</numerusform>
        <numerusform>%n Seiten können nicht gezeichnet werden; vielleicht ist kein Platz mehr für temporäre Dateien.</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n sheet side(s)</source>
      <translation>
        <numerusform>%n Bogenseite</numerusform>
        <numerusform>%n Bogenseiten</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n sheet(s)</source>
      <translation>
        <numerusform>%n Blatt</numerusform>
        <numerusform>%n Blätter</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n sheet(s) after page %1</source>
      <translation>
        <numerusform>%n Blatt nach Seite %1</numerusform>
        <numerusform>%n Blätter nach Seite %1</numerusform>
      </translation>
    </message>
    <message>
      <source>&amp;All sheets</source>
      <translation>&amp;Alle Blätter</translation>
    </message>
    <message>
      <source>&amp;Edit</source>
      <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
      <source>&amp;File</source>
      <translation>&amp;Datei</translation>
    </message>
    <message>
      <source>&amp;Larger</source>
      <translation>&amp;Größer</translation>
    </message>
    <message>
      <source>&amp;New settings</source>
      <translation>&amp;Neue Einstellungen</translation>
    </message>
    <message>
      <source>&amp;One side</source>
      <translation>&amp;Eine Seite</translation>
    </message>
    <message>
      <source>&amp;Open…</source>
      <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
      <source>&amp;Print</source>
      <translation>&amp;Drucken</translation>
    </message>
    <message>
      <source>&amp;Quit</source>
      <translation>&amp;Beenden</translation>
    </message>
    <message>
      <source>&amp;Recent documents</source>
      <translation>Zu&amp;letzt geöffnet</translation>
    </message>
    <message>
      <source>&amp;Redo</source>
      <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
      <source>&amp;Show staples, holes and folds</source>
      <translation>&amp;Klammern, Löcher und Falze zeigen</translation>
    </message>
    <message>
      <source>&amp;Smaller</source>
      <translation>&amp;Kleiner</translation>
    </message>
    <message>
      <source>&amp;Undo</source>
      <translation>&amp;Rückgängig</translation>
    </message>
    <message>
      <source>&amp;View</source>
      <translation>&amp;Ansicht</translation>
    </message>
    <message>
      <source>/10 points</source>
      <translation>/10 Punkt</translation>
    </message>
    <message>
      <source>1 sheet after page %1</source>
      <translation>1 Blatt nach Seite %1</translation>
    </message>
    <message>
      <source>4 to 10 digits</source>
      <translation>4 bis 10 Ziffern</translation>
    </message>
    <message>
      <source>A text of one's own</source>
      <translation>Ein eigener Text</translation>
    </message>
    <message>
      <source>Abort</source>
      <translation>Abbrechen</translation>
    </message>
    <message>
      <source>Account for it</source>
      <translation>Abrechnung</translation>
    </message>
    <message>
      <source>Account in the XML ticket</source>
      <translation>Konto im XML-Auftragsticket</translation>
    </message>
    <message>
      <source>Accounting in the XML ticket, on only in mode "user-and-account"</source>
      <translation>Kostenabrechnung im XML-Auftragsticket, nur bei „Benutzer und Konto“</translation>
    </message>
    <message>
      <source>Accounting mode</source>
      <translation>Art der Kostenabrechnung</translation>
    </message>
    <message>
      <source>Accounting user in the XML ticket</source>
      <translation>Benutzer für die Abrechnung im XML-Auftragsticket</translation>
    </message>
    <message>
      <source>Add from the address book</source>
      <translation>Aus dem Adressbuch hinzufügen</translation>
    </message>
    <message>
      <source>Add this number</source>
      <translation>Diese Nummer hinzufügen</translation>
    </message>
    <message>
      <source>Additional accounting data</source>
      <translation>Weitere Abrechnungsdaten</translation>
    </message>
    <message>
      <source>Address book</source>
      <translation>Adressbuch</translation>
    </message>
    <message>
      <source>Address-book record</source>
      <translation>Eintrag im Adressbuch</translation>
    </message>
    <message>
      <source>After page</source>
      <translation>Nach Seite</translation>
    </message>
    <message>
      <source>All</source>
      <translation>Alle</translation>
    </message>
    <message>
      <source>All files</source>
      <translation>Alle Dateien</translation>
    </message>
    <message>
      <source>All settings</source>
      <translation>Alle Einstellungen</translation>
    </message>
    <message>
      <source>Angle</source>
      <translation>Winkel</translation>
    </message>
    <message>
      <source>As a &amp;reader</source>
      <translation>Wie ein &amp;Leser</translation>
    </message>
    <message>
      <source>As the job</source>
      <translation>Wie der Auftrag</translation>
    </message>
    <message>
      <source>As the printer does</source>
      <translation>Wie der Drucker es tut</translation>
    </message>
    <message>
      <source>As they are</source>
      <translation>Wie sie sind</translation>
    </message>
    <message>
      <source>At the bottom</source>
      <translation>Unten</translation>
    </message>
    <message>
      <source>At the left</source>
      <translation>Links</translation>
    </message>
    <message>
      <source>At the printer choose this job and type the PIN.</source>
      <translation>Am Drucker diesen Auftrag wählen und die PIN eingeben.</translation>
    </message>
    <message>
      <source>At the right</source>
      <translation>Rechts</translation>
    </message>
    <message>
      <source>At the top</source>
      <translation>Oben</translation>
    </message>
    <message>
      <source>Back printed</source>
      <translation>Rückseite bedruckt</translation>
    </message>
    <message>
      <source>Background forms</source>
      <translation>Hintergrundformulare</translation>
    </message>
    <message>
      <source>Balance from cyan to red</source>
      <translation>Balance von Cyan nach Rot</translation>
    </message>
    <message>
      <source>Balance from magenta to green</source>
      <translation>Balance von Magenta nach Grün</translation>
    </message>
    <message>
      <source>Balance from yellow to blue</source>
      <translation>Balance von Gelb nach Blau</translation>
    </message>
    <message>
      <source>Banner page</source>
      <translation>Bannerseite</translation>
    </message>
    <message>
      <source>Billing code, up to 16 bytes</source>
      <translation>Abrechnungscode, bis 16 Byte</translation>
    </message>
    <message>
      <source>Binding choice</source>
      <translation>Bindung</translation>
    </message>
    <message>
      <source>Black</source>
      <translation>Schwarz</translation>
    </message>
    <message>
      <source>Black and gray</source>
      <translation>Schwarz und Grau</translation>
    </message>
    <message>
      <source>Black overprint off</source>
      <translation>Schwarz überdruckt nicht</translation>
    </message>
    <message>
      <source>Black overprint on</source>
      <translation>Schwarz überdruckt</translation>
    </message>
    <message>
      <source>Black printed over colours</source>
      <translation>Schwarz über Farben drucken</translation>
    </message>
    <message>
      <source>Blank sheets</source>
      <translation>Leere Blätter</translation>
    </message>
    <message>
      <source>Blue of a custom colour</source>
      <translation>Blauanteil einer eigenen Farbe</translation>
    </message>
    <message>
      <source>Booklet on the job's stock size</source>
      <translation>Broschüre im Format des Papiers</translation>
    </message>
    <message>
      <source>Booklet, read from left to right</source>
      <translation>Broschüre, von links nach rechts gelesen</translation>
    </message>
    <message>
      <source>Booklet, read from right to left</source>
      <translation>Broschüre, von rechts nach links gelesen</translation>
    </message>
    <message>
      <source>Both</source>
      <translation>Beide</translation>
    </message>
    <message>
      <source>Both sides printed</source>
      <translation>Beide Seiten bedruckt</translation>
    </message>
    <message>
      <source>Both sides, turned like a book</source>
      <translation>Beidseitig, wie ein Buch gewendet</translation>
    </message>
    <message>
      <source>Both sides, turned like a calendar</source>
      <translation>Beidseitig, wie ein Kalender gewendet</translation>
    </message>
    <message>
      <source>Both sides, turned over the long edge</source>
      <translation>Beide Seiten, an der langen Kante gewendet</translation>
    </message>
    <message>
      <source>Both sides, turned over the short edge</source>
      <translation>Beide Seiten, an der kurzen Kante gewendet</translation>
    </message>
    <message>
      <source>Bound at the left</source>
      <translation>Links gebunden</translation>
    </message>
    <message>
      <source>Bound at the right</source>
      <translation>Rechts gebunden</translation>
    </message>
    <message>
      <source>Brown</source>
      <translation>Braun</translation>
    </message>
    <message>
      <source>By user and account</source>
      <translation>Nach Benutzer und Konto</translation>
    </message>
    <message>
      <source>By user and general account</source>
      <translation>Nach Benutzer und allgemeinem Konto</translation>
    </message>
    <message>
      <source>By user and group account</source>
      <translation>Nach Benutzer und Gruppenkonto</translation>
    </message>
    <message>
      <source>Cardinal</source>
      <translation>Kardinalrot</translation>
    </message>
    <message>
      <source>Choose a watermark first.</source>
      <translation>Zuerst ein Wasserzeichen wählen.</translation>
    </message>
    <message>
      <source>Choose first what is other than for the job.</source>
      <translation>Zuerst wählen, was anders als beim Auftrag ist.</translation>
    </message>
    <message>
      <source>Choose one in the list first.</source>
      <translation>Wählen Sie zuerst etwas in der Liste.</translation>
    </message>
    <message>
      <source>Choose one of the pictures first.</source>
      <translation>Wählen Sie zuerst eines der Bilder.</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>Schließen</translation>
    </message>
    <message>
      <source>Coarse</source>
      <translation>Grob</translation>
    </message>
    <message>
      <source>Coating, back</source>
      <translation>Beschichtung, Rückseite</translation>
    </message>
    <message>
      <source>Coating, front</source>
      <translation>Beschichtung, Vorderseite</translation>
    </message>
    <message>
      <source>Collated</source>
      <translation>Sortiert</translation>
    </message>
    <message>
      <source>Color to highlight</source>
      <translation>Farbe zu Schmuckfarbe</translation>
    </message>
    <message>
      <source>Colorant</source>
      <translation>Farbmittel</translation>
    </message>
    <message>
      <source>Colour</source>
      <translation>Farbe</translation>
    </message>
    <message>
      <source>Colour and quality</source>
      <translation>Farbe und Qualität</translation>
    </message>
    <message>
      <source>Colour of the separators</source>
      <translation>Farbe der Trennblätter</translation>
    </message>
    <message>
      <source>Colour of transparency separators</source>
      <translation>Farbe der Trennblätter zwischen Folien</translation>
    </message>
    <message>
      <source>Colour or grayscale</source>
      <translation>Farbe oder Graustufen</translation>
    </message>
    <message>
      <source>Colour settings</source>
      <translation>Farbeinstellungen</translation>
    </message>
    <message>
      <source>Colour that is mapped to it</source>
      <translation>Farbe, die dazu wird</translation>
    </message>
    <message>
      <source>Company</source>
      <translation>Firma</translation>
    </message>
    <message>
      <source>Converting</source>
      <translation>Wird umgewandelt</translation>
    </message>
    <message>
      <source>Copies</source>
      <translation>Exemplare</translation>
    </message>
    <message>
      <source>Copies and pages</source>
      <translation>Exemplare und Seiten</translation>
    </message>
    <message>
      <source>Correct them, or give --force to print it all the same</source>
      <translation>Berichtigen Sie sie, oder drucken Sie trotzdem</translation>
    </message>
    <message>
      <source>Corvanta180 adjustable</source>
      <translation>Wie Corvanta180, einstellbar</translation>
    </message>
    <message>
      <source>Cover</source>
      <translation>Deckblatt</translation>
    </message>
    <message>
      <source>Cover sheet</source>
      <translation>Deckblatt</translation>
    </message>
    <message>
      <source>Covers</source>
      <translation>Deckblätter</translation>
    </message>
    <message>
      <source>Covers and pages</source>
      <translation>Deckblätter und Seiten</translation>
    </message>
    <message>
      <source>Creep for each sheet</source>
      <translation>Bundzuwachs je Blatt</translation>
    </message>
    <message>
      <source>Creep for each sheet, 1/10 point</source>
      <translation>Bundzuwachs je Blatt, 1/10 Punkt</translation>
    </message>
    <message>
      <source>Custom %1</source>
      <translation>Eigenes %1</translation>
    </message>
    <message>
      <source>Custom colour as RGB, else as HSV</source>
      <translation>Eigene Farbe als RGB, sonst als HSV</translation>
    </message>
    <message>
      <source>Cyan</source>
      <translation>Cyan</translation>
    </message>
    <message>
      <source>Cyan to red</source>
      <translation>Cyan nach Rot</translation>
    </message>
    <message>
      <source>Darkness</source>
      <translation>Dunkelheit</translation>
    </message>
    <message>
      <source>Darkness of another printer</source>
      <translation>Dunkelheit eines anderen Druckers</translation>
    </message>
    <message>
      <source>Delivery</source>
      <translation>Ablage</translation>
    </message>
    <message>
      <source>Description</source>
      <translation>Beschreibung</translation>
    </message>
    <message>
      <source>Destination profile, back</source>
      <translation>Zielprofil, Rückseite</translation>
    </message>
    <message>
      <source>Destination profile, front</source>
      <translation>Zielprofil, Vorderseite</translation>
    </message>
    <message>
      <source>Destination profile: a code or a name</source>
      <translation>Zielprofil: Code oder Name</translation>
    </message>
    <message>
      <source>Dialled before every number</source>
      <translation>Vorwahl</translation>
    </message>
    <message>
      <source>Dialled before every number, up to 4 bytes</source>
      <translation>Vor jeder Nummer gewählt, bis 4 Byte</translation>
    </message>
    <message>
      <source>Do not insert</source>
      <translation>Nicht einsetzen</translation>
    </message>
    <message>
      <source>Do this</source>
      <translation>Das tun</translation>
    </message>
    <message>
      <source>Document format</source>
      <translation>Dokumentformat</translation>
    </message>
    <message>
      <source>Documents and pictures</source>
      <translation>Dokumente und Bilder</translation>
    </message>
    <message>
      <source>Drawing %v of %m</source>
      <translation>%v von %m gezeichnet</translation>
    </message>
    <message>
      <source>Drop a document here, or choose Open.</source>
      <translation>Legen Sie hier ein Dokument ab, oder wählen Sie „Öffnen“.</translation>
    </message>
    <message>
      <source>E-mail address</source>
      <translation>E-Mail-Adresse</translation>
    </message>
    <message>
      <source>Each job</source>
      <translation>Jeder Auftrag</translation>
    </message>
    <message>
      <source>Envelope c5</source>
      <translation>Umschlag C5</translation>
    </message>
    <message>
      <source>Envelope dl</source>
      <translation>Umschlag DL</translation>
    </message>
    <message>
      <source>Envelopes</source>
      <translation>Umschläge (Post)</translation>
    </message>
    <message>
      <source>Every section</source>
      <translation>Alle Abschnitte</translation>
    </message>
    <message>
      <source>Family name</source>
      <translation>Nachname</translation>
    </message>
    <message>
      <source>Fast reprint</source>
      <translation>Schneller Nachdruck</translation>
    </message>
    <message>
      <source>Fast reprint and dri</source>
      <translation>Schneller Nachdruck und DRI</translation>
    </message>
    <message>
      <source>Fax confirmation sheet</source>
      <translation>Fax-Sendebericht</translation>
    </message>
    <message>
      <source>Fax cover sheet made by the printer</source>
      <translation>Fax-Deckblatt vom Drucker</translation>
    </message>
    <message>
      <source>Fax number as typed</source>
      <translation>Faxnummer, wie getippt</translation>
    </message>
    <message>
      <source>Fax recipients</source>
      <translation>Faxempfänger</translation>
    </message>
    <message>
      <source>Fax to</source>
      <translation>Fax an</translation>
    </message>
    <message>
      <source>Fax to the mailbox</source>
      <translation>Fax an die Mailbox</translation>
    </message>
    <message>
      <source>Faxed after</source>
      <translation>Gefaxt nach</translation>
    </message>
    <message>
      <source>Find a setting</source>
      <translation>Eine Einstellung suchen</translation>
    </message>
    <message>
      <source>Find one by its title</source>
      <translation>Nach Titel suchen</translation>
    </message>
    <message>
      <source>Finish</source>
      <translation>Verarbeitung</translation>
    </message>
    <message>
      <source>Finish of a booklet</source>
      <translation>Verarbeitung einer Broschüre</translation>
    </message>
    <message>
      <source>Finishing preset; it says which of the other finishing values count</source>
      <translation>Vorwahl der Weiterverarbeitung; sie sagt, welche der anderen Werte zählen</translation>
    </message>
    <message>
      <source>Finishing template of the printer</source>
      <translation>Verarbeitungsvorlage des Druckers</translation>
    </message>
    <message>
      <source>First page</source>
      <translation>Erste Seite</translation>
    </message>
    <message>
      <source>Fold 1003 of the printer</source>
      <translation>Falz 1003 des Druckers</translation>
    </message>
    <message>
      <source>Fold 1004 of the printer</source>
      <translation>Falz 1004 des Druckers</translation>
    </message>
    <message>
      <source>Fold 1005 of the printer</source>
      <translation>Falz 1005 des Druckers</translation>
    </message>
    <message>
      <source>Fold 1008 of the printer</source>
      <translation>Falz 1008 des Druckers</translation>
    </message>
    <message>
      <source>Fold 1011 of the printer</source>
      <translation>Falz 1011 des Druckers</translation>
    </message>
    <message>
      <source>Fold 1012 of the printer</source>
      <translation>Falz 1012 des Druckers</translation>
    </message>
    <message>
      <source>Fold and staple in the fold</source>
      <translation>Falzen und im Falz heften</translation>
    </message>
    <message>
      <source>Fold choice</source>
      <translation>Falz</translation>
    </message>
    <message>
      <source>Fold in the middle</source>
      <translation>In der Mitte falzen</translation>
    </message>
    <message>
      <source>Folded in the middle</source>
      <translation>In der Mitte gefalzt</translation>
    </message>
    <message>
      <source>Folded in the middle and stapled there</source>
      <translation>In der Mitte gefalzt und geheftet</translation>
    </message>
    <message>
      <source>Folded to a booklet</source>
      <translation>Zur Broschüre gefalzt</translation>
    </message>
    <message>
      <source>Folder</source>
      <translation>Ordner</translation>
    </message>
    <message>
      <source>Folder at the printer</source>
      <translation>Ordner am Drucker</translation>
    </message>
    <message>
      <source>Folder of the printer for a saved job</source>
      <translation>Ordner des Druckers für einen gespeicherten Auftrag</translation>
    </message>
    <message>
      <source>Forced 4800</source>
      <translation>Fest 4800</translation>
    </message>
    <message>
      <source>Format</source>
      <translation>Format</translation>
    </message>
    <message>
      <source>Format of a saved job</source>
      <translation>Format eines gespeicherten Auftrags</translation>
    </message>
    <message>
      <source>Four holes</source>
      <translation>Vier Löcher</translation>
    </message>
    <message>
      <source>Frame around each booklet page</source>
      <translation>Rahmen um jede Broschürenseite</translation>
    </message>
    <message>
      <source>Frame around each page</source>
      <translation>Rahmen um jede Seite</translation>
    </message>
    <message>
      <source>Free description</source>
      <translation>Freie Beschreibung</translation>
    </message>
    <message>
      <source>From</source>
      <translation>Von</translation>
    </message>
    <message>
      <source>From left to right</source>
      <translation>Von links nach rechts</translation>
    </message>
    <message>
      <source>From right to left</source>
      <translation>Von rechts nach links</translation>
    </message>
    <message>
      <source>Front</source>
      <translation>Vorderseite</translation>
    </message>
    <message>
      <source>Front printed</source>
      <translation>Vorderseite bedruckt</translation>
    </message>
    <message>
      <source>Further notes</source>
      <translation>Weitere Anmerkungen</translation>
    </message>
    <message>
      <source>General account</source>
      <translation>Allgemeines Konto</translation>
    </message>
    <message>
      <source>Ghostscript cannot draw the job: %1</source>
      <translation>Ghostscript kann den Auftrag nicht zeichnen: %1</translation>
    </message>
    <message>
      <source>Given name</source>
      <translation>Vorname</translation>
    </message>
    <message>
      <source>Glossy</source>
      <translation>Glänzend</translation>
    </message>
    <message>
      <source>Glue</source>
      <translation>Klebebindung</translation>
    </message>
    <message>
      <source>Go to the printer %1, choose the job "%2" and type your PIN.</source>
      <translation>Gehen Sie zum Drucker %1, wählen Sie den Auftrag „%2“ und geben Sie Ihre PIN ein.</translation>
    </message>
    <message>
      <source>Grain</source>
      <translation>Laufrichtung</translation>
    </message>
    <message>
      <source>Grain direction</source>
      <translation>Laufrichtung des Papiers</translation>
    </message>
    <message>
      <source>Green of a custom colour</source>
      <translation>Grünanteil einer eigenen Farbe</translation>
    </message>
    <message>
      <source>Group account</source>
      <translation>Gruppenkonto</translation>
    </message>
    <message>
      <source>Groups of settings</source>
      <translation>Gruppen von Einstellungen</translation>
    </message>
    <message>
      <source>HSV</source>
      <translation>HSV</translation>
    </message>
    <message>
      <source>Half Z fold</source>
      <translation>Halber Z-Falz</translation>
    </message>
    <message>
      <source>Half Z fold, other side</source>
      <translation>Halber Z-Falz, andere Seite</translation>
    </message>
    <message>
      <source>Halftone of graphics</source>
      <translation>Raster der Grafiken</translation>
    </message>
    <message>
      <source>Halftone of images</source>
      <translation>Raster der Bilder</translation>
    </message>
    <message>
      <source>Halftone of text</source>
      <translation>Raster der Texte</translation>
    </message>
    <message>
      <source>Halftone screen</source>
      <translation>Raster</translation>
    </message>
    <message>
      <source>Halftone; not sent to the printer</source>
      <translation>Raster; wird nicht an den Drucker gesendet</translation>
    </message>
    <message>
      <source>Heading of the notes</source>
      <translation>Überschrift der Anmerkungen</translation>
    </message>
    <message>
      <source>Heading of the recipients</source>
      <translation>Überschrift der Empfänger</translation>
    </message>
    <message>
      <source>Heading of the sender</source>
      <translation>Überschrift des Absenders</translation>
    </message>
    <message>
      <source>Held until released</source>
      <translation>Angehalten bis zur Freigabe</translation>
    </message>
    <message>
      <source>High gloss</source>
      <translation>Hochglanz</translation>
    </message>
    <message>
      <source>Highlight colorant</source>
      <translation>Schmuckfarbe</translation>
    </message>
    <message>
      <source>Highlight colour</source>
      <translation>Schmuckfarbe</translation>
    </message>
    <message>
      <source>Highlight mapping</source>
      <translation>Zuordnung der Schmuckfarbe</translation>
    </message>
    <message>
      <source>Highlighted colour</source>
      <translation>Hervorgehobene Farbe</translation>
    </message>
    <message>
      <source>Highlighted custom colour</source>
      <translation>Hervorgehobene eigene Farbe</translation>
    </message>
    <message>
      <source>Hold</source>
      <translation>Anhalten</translation>
    </message>
    <message>
      <source>Hold it at the printer</source>
      <translation>Am Drucker zurückhalten</translation>
    </message>
    <message>
      <source>Holes, folds and binding</source>
      <translation>Löcher, Falze und Bindung</translation>
    </message>
    <message>
      <source>House tickets</source>
      <translation>Hausaufträge</translation>
    </message>
    <message>
      <source>How far the pages lie turned, for the watermark</source>
      <translation>Wie weit die Seiten gedreht liegen, für das Wasserzeichen</translation>
    </message>
    <message>
      <source>How it is sent</source>
      <translation>Wie es gesendet wird</translation>
    </message>
    <message>
      <source>How many</source>
      <translation>Wie viele</translation>
    </message>
    <message>
      <source>Hue</source>
      <translation>Farbton</translation>
    </message>
    <message>
      <source>Hue of a custom colour</source>
      <translation>Farbton einer eigenen Farbe</translation>
    </message>
    <message>
      <source>Image shift</source>
      <translation>Bildverschiebung</translation>
    </message>
    <message>
      <source>In document</source>
      <translation>In Dokument</translation>
    </message>
    <message>
      <source>Indefinite</source>
      <translation>Unbefristet</translation>
    </message>
    <message>
      <source>Insert</source>
      <translation>Einsetzen</translation>
    </message>
    <message>
      <source>Insert them after these pages</source>
      <translation>Nach diesen Seiten einlegen</translation>
    </message>
    <message>
      <source>Inserts</source>
      <translation>Einlegebögen</translation>
    </message>
    <message>
      <source>It was canceled: print again</source>
      <translation>Er wurde abgebrochen: Drucken Sie noch einmal</translation>
    </message>
    <message>
      <source>Job name</source>
      <translation>Auftragsname</translation>
    </message>
    <message>
      <source>Jobs of %1 do not pass through the filter of these settings; most of them will have no effect.</source>
      <translation>Aufträge für %1 laufen nicht durch den Filter dieser Einstellungen; die meisten werden nichts bewirken.</translation>
    </message>
    <message>
      <source>Keep</source>
      <translation>Behalten</translation>
    </message>
    <message>
      <source>Keep in the address book</source>
      <translation>Im Adressbuch behalten</translation>
    </message>
    <message>
      <source>Keep on the printer, do not print</source>
      <translation>Am Drucker behalten, nicht drucken</translation>
    </message>
    <message>
      <source>Keep the changes of this watermark</source>
      <translation>Änderungen dieses Wasserzeichens behalten</translation>
    </message>
    <message>
      <source>Keep the settings under a name</source>
      <translation>Die Einstellungen unter einem Namen behalten</translation>
    </message>
    <message>
      <source>Kept as %1. "zarvo ticket list" shows all that are kept.</source>
      <translation>Als %1 behalten. „zarvo ticket list“ zeigt alle.</translation>
    </message>
    <message>
      <source>Kept on the printer, not printed</source>
      <translation>Am Drucker behalten, nicht gedruckt</translation>
    </message>
    <message>
      <source>Kind</source>
      <translation>Art</translation>
    </message>
    <message>
      <source>Kind of account in mode "user"</source>
      <translation>Art des Kontos bei „Benutzer“</translation>
    </message>
    <message>
      <source>Kind of coating</source>
      <translation>Art der Beschichtung</translation>
    </message>
    <message>
      <source>Kind of stock</source>
      <translation>Papierart</translation>
    </message>
    <message>
      <source>Label of the fax number</source>
      <translation>Beschriftung der Faxnummer</translation>
    </message>
    <message>
      <source>Label of the sender's fax number</source>
      <translation>Beschriftung der Faxnummer des Absenders</translation>
    </message>
    <message>
      <source>Label of the sender's phone number</source>
      <translation>Beschriftung der Telefonnummer des Absenders</translation>
    </message>
    <message>
      <source>Landscape</source>
      <translation>Querformat</translation>
    </message>
    <message>
      <source>Last page</source>
      <translation>Letzte Seite</translation>
    </message>
    <message>
      <source>Legal</source>
      <translation>Legal</translation>
    </message>
    <message>
      <source>Length of a size without a code, 1/100 mm</source>
      <translation>Länge eines Formats ohne Code, 1/100 mm</translation>
    </message>
    <message>
      <source>Letter</source>
      <translation>Letter</translation>
    </message>
    <message>
      <source>Letter head</source>
      <translation>Briefkopf</translation>
    </message>
    <message>
      <source>Look for OPI images first</source>
      <translation>Zuerst nach OPI-Bildern suchen</translation>
    </message>
    <message>
      <source>Magenta</source>
      <translation>Magenta</translation>
    </message>
    <message>
      <source>Magenta to green</source>
      <translation>Magenta nach Grün</translation>
    </message>
    <message>
      <source>Mailbox on the printer</source>
      <translation>Mailbox auf dem Drucker</translation>
    </message>
    <message>
      <source>Make or change a watermark</source>
      <translation>Ein Wasserzeichen anlegen oder ändern</translation>
    </message>
    <message>
      <source>Mapping method</source>
      <translation>Art der Zuordnung</translation>
    </message>
    <message>
      <source>Matte</source>
      <translation>Matt</translation>
    </message>
    <message>
      <source>Medium</source>
      <translation>Mittel</translation>
    </message>
    <message>
      <source>Message on the banner page</source>
      <translation>Text auf der Bannerseite</translation>
    </message>
    <message>
      <source>Message to the operator</source>
      <translation>Nachricht an den Bediener</translation>
    </message>
    <message>
      <source>Mirror the page</source>
      <translation>Seite spiegeln</translation>
    </message>
    <message>
      <source>Mirrored</source>
      <translation>Gespiegelt</translation>
    </message>
    <message>
      <source>Multi page tiff</source>
      <translation>TIFF, eine Datei</translation>
    </message>
    <message>
      <source>Name of a saved job</source>
      <translation>Name eines gespeicherten Auftrags</translation>
    </message>
    <message>
      <source>Name of the job</source>
      <translation>Name des Auftrags</translation>
    </message>
    <message>
      <source>Name that the printer knows it by</source>
      <translation>Name, unter dem der Drucker es kennt</translation>
    </message>
    <message>
      <source>Name the job after the document</source>
      <translation>Auftrag nach dem Dokument benennen</translation>
    </message>
    <message>
      <source>Name to save it under</source>
      <translation>Name, unter dem gespeichert wird</translation>
    </message>
    <message>
      <source>Name under which the job is stored as a form</source>
      <translation>Name, unter dem der Auftrag als Formular gespeichert wird</translation>
    </message>
    <message>
      <source>Name under which the printer knows the stock</source>
      <translation>Name, unter dem der Drucker das Papier kennt</translation>
    </message>
    <message>
      <source>Negative</source>
      <translation>Negativ</translation>
    </message>
    <message>
      <source>Negative and mirror</source>
      <translation>Negativ und Spiegelbild</translation>
    </message>
    <message>
      <source>New</source>
      <translation>Neu</translation>
    </message>
    <message>
      <source>No</source>
      <translation>Nein</translation>
    </message>
    <message>
      <source>No booklet</source>
      <translation>Keine Broschüre</translation>
    </message>
    <message>
      <source>No cover</source>
      <translation>Kein Deckblatt</translation>
    </message>
    <message>
      <source>No fold</source>
      <translation>Kein Falz</translation>
    </message>
    <message>
      <source>No holes</source>
      <translation>Keine Löcher</translation>
    </message>
    <message>
      <source>No pre scan</source>
      <translation>Ohne Vorprüfung</translation>
    </message>
    <message>
      <source>No printers</source>
      <translation>Keine Drucker</translation>
    </message>
    <message>
      <source>No staples</source>
      <translation>Keine Klammern</translation>
    </message>
    <message>
      <source>No time is set</source>
      <translation>Keine Zeit gesetzt</translation>
    </message>
    <message>
      <source>None is kept yet. Choose settings in the other groups, type a name below and keep them.</source>
      <translation>Noch ist nichts aufbewahrt. Wählen Sie Einstellungen in den anderen Gruppen, geben Sie unten einen Namen ein und behalten Sie sie.</translation>
    </message>
    <message>
      <source>Normal</source>
      <translation>Normal</translation>
    </message>
    <message>
      <source>Not glued</source>
      <translation>Nicht geklebt</translation>
    </message>
    <message>
      <source>Not printed</source>
      <translation>Nicht bedruckt</translation>
    </message>
    <message>
      <source>Notes</source>
      <translation>Notizen</translation>
    </message>
    <message>
      <source>Notes on the cover</source>
      <translation>Anmerkungen auf dem Deckblatt</translation>
    </message>
    <message numerus="yes">
      <source>Nothing has come from the programs that convert the document for %n second(s); they have been ended.</source>
      <translation>
        <numerusform>Von den Programmen, die das Dokument umwandeln, kam %n Sekunde lang nichts; sie wurden beendet.</numerusform>
        <numerusform>Von den Programmen, die das Dokument umwandeln, kam %n Sekunden lang nichts; sie wurden beendet.</numerusform>
      </translation>
    </message>
    <message>
      <source>Nothing: the job is printed as the queue does it by itself.</source>
      <translation>Nichts: Der Auftrag wird gedruckt, wie die Warteschlange es von sich aus tut.</translation>
    </message>
    <message>
      <source>Number</source>
      <translation>Nummer</translation>
    </message>
    <message>
      <source>Number of holes</source>
      <translation>Anzahl der Löcher</translation>
    </message>
    <message>
      <source>Number of sheets</source>
      <translation>Anzahl der Blätter</translation>
    </message>
    <message>
      <source>OPI images</source>
      <translation>OPI-Bilder</translation>
    </message>
    <message>
      <source>Object based</source>
      <translation>Nach Objekten</translation>
    </message>
    <message>
      <source>Offset</source>
      <translation>Versatz</translation>
    </message>
    <message>
      <source>Offset in the tray</source>
      <translation>Versatz in der Ablage</translation>
    </message>
    <message>
      <source>Offset of sets</source>
      <translation>Versatz der Sätze</translation>
    </message>
    <message>
      <source>Offset of subsets</source>
      <translation>Versatz der Teilsätze</translation>
    </message>
    <message>
      <source>Offset this job in the tray</source>
      <translation>Diesen Auftrag in der Ablage versetzen</translation>
    </message>
    <message>
      <source>Offset to the right</source>
      <translation>Versatz nach rechts</translation>
    </message>
    <message>
      <source>Offset upwards</source>
      <translation>Versatz nach oben</translation>
    </message>
    <message>
      <source>Offsets are in 1/10 inch, else in mm</source>
      <translation>Versatz in 1/10 Zoll, sonst in mm</translation>
    </message>
    <message>
      <source>Offsets are in 1/100 mm already</source>
      <translation>Versatz schon in 1/100 mm</translation>
    </message>
    <message>
      <source>On A4</source>
      <translation>Auf A4</translation>
    </message>
    <message>
      <source>On Letter</source>
      <translation>Auf Letter</translation>
    </message>
    <message>
      <source>On the first page only</source>
      <translation>Nur auf der ersten Seite</translation>
    </message>
    <message>
      <source>On the paper's own size</source>
      <translation>Auf der Größe des Papiers</translation>
    </message>
    <message>
      <source>One sheet, large</source>
      <translation>Ein Blatt, groß</translation>
    </message>
    <message>
      <source>One side of each sheet</source>
      <translation>Eine Seite jedes Blattes</translation>
    </message>
    <message>
      <source>One staple</source>
      <translation>Eine Klammer</translation>
    </message>
    <message>
      <source>One staple, bottom left</source>
      <translation>Eine Klammer, unten links</translation>
    </message>
    <message>
      <source>One staple, bottom right</source>
      <translation>Eine Klammer, unten rechts</translation>
    </message>
    <message>
      <source>One staple, top left</source>
      <translation>Eine Klammer, oben links</translation>
    </message>
    <message>
      <source>One staple, top right</source>
      <translation>Eine Klammer, oben rechts</translation>
    </message>
    <message>
      <source>Open</source>
      <translation>Öffnen</translation>
    </message>
    <message>
      <source>Open &amp;settings…</source>
      <translation>Einstellungen ö&amp;ffnen…</translation>
    </message>
    <message>
      <source>Open settings</source>
      <translation>Einstellungen öffnen</translation>
    </message>
    <message>
      <source>Order and side of delivery</source>
      <translation>Reihenfolge und Seite der Ablage</translation>
    </message>
    <message>
      <source>Orientation</source>
      <translation>Ausrichtung</translation>
    </message>
    <message>
      <source>Over the page</source>
      <translation>Über der Seite</translation>
    </message>
    <message>
      <source>PIN, up to 19 characters</source>
      <translation>PIN, bis 19 Zeichen</translation>
    </message>
    <message>
      <source>Page %1</source>
      <translation>Seite %1</translation>
    </message>
    <message>
      <source>Page %2 · sheet %1</source>
      <translation>Seite %2 · Blatt %1</translation>
    </message>
    <message>
      <source>Page %2 · sheet %1, back</source>
      <translation>Seite %2 · Blatt %1 hinten</translation>
    </message>
    <message>
      <source>Page %2 · sheet %1, front</source>
      <translation>Seite %2 · Blatt %1 vorn</translation>
    </message>
    <message>
      <source>Page after which they come</source>
      <translation>Seite, nach der sie kommen</translation>
    </message>
    <message>
      <source>Page exception</source>
      <translation>Seitenausnahme</translation>
    </message>
    <message>
      <source>Page exceptions</source>
      <translation>Ausnahmen für Seiten</translation>
    </message>
    <message>
      <source>Pages %1 to %2</source>
      <translation>Seiten %1 bis %2</translation>
    </message>
    <message>
      <source>Pages after which the form starts again</source>
      <translation>Seiten, nach denen das Formular von vorn beginnt</translation>
    </message>
    <message>
      <source>Pages in a cycle</source>
      <translation>Seiten je Durchgang</translation>
    </message>
    <message>
      <source>Pages in a subset</source>
      <translation>Seiten je Teilsatz</translation>
    </message>
    <message>
      <source>Pages turned</source>
      <translation>Seiten gedreht</translation>
    </message>
    <message>
      <source>Paper</source>
      <translation>Papier</translation>
    </message>
    <message>
      <source>Paper and trays</source>
      <translation>Papier und Fächer</translation>
    </message>
    <message>
      <source>Paper colour</source>
      <translation>Papierfarbe</translation>
    </message>
    <message>
      <source>Paper from</source>
      <translation>Papier aus</translation>
    </message>
    <message>
      <source>Paper kind</source>
      <translation>Papierart</translation>
    </message>
    <message>
      <source>Paper of both covers</source>
      <translation>Papier beider Deckblätter</translation>
    </message>
    <message>
      <source>Paper of the cover</source>
      <translation>Papier des Deckblatts</translation>
    </message>
    <message>
      <source>Paper of the front cover</source>
      <translation>Papier des vorderen Deckblatts</translation>
    </message>
    <message>
      <source>Paper weight</source>
      <translation>Papiergewicht</translation>
    </message>
    <message>
      <source>Phone number</source>
      <translation>Telefonnummer</translation>
    </message>
    <message>
      <source>Pictorial</source>
      <translation>Bildhaft</translation>
    </message>
    <message>
      <source>Picture for a watermark</source>
      <translation>Bild für ein Wasserzeichen</translation>
    </message>
    <message>
      <source>Portrait</source>
      <translation>Hochformat</translation>
    </message>
    <message>
      <source>PostScript job %1 of %2</source>
      <translation>PostScript-Auftrag %1 von %2</translation>
    </message>
    <message>
      <source>Pre printed</source>
      <translation>Vorgedruckt</translation>
    </message>
    <message>
      <source>Pre scan</source>
      <translation>Vorprüfung</translation>
    </message>
    <message>
      <source>Pre scan and gather</source>
      <translation>Vorprüfung und Sammeln</translation>
    </message>
    <message>
      <source>Presentation</source>
      <translation>Präsentation</translation>
    </message>
    <message>
      <source>Print a confirmation</source>
      <translation>Bestätigung drucken</translation>
    </message>
    <message>
      <source>Print a range of pages</source>
      <translation>Einen Seitenbereich drucken</translation>
    </message>
    <message>
      <source>Print and keep on the printer</source>
      <translation>Drucken und am Drucker behalten</translation>
    </message>
    <message>
      <source>Print and save it</source>
      <translation>Drucken und speichern</translation>
    </message>
    <message>
      <source>Print in</source>
      <translation>Drucken in</translation>
    </message>
    <message>
      <source>Print it</source>
      <translation>Drucken</translation>
    </message>
    <message>
      <source>Print it all the same</source>
      <translation>Trotzdem drucken</translation>
    </message>
    <message>
      <source>Print it later</source>
      <translation>Später drucken</translation>
    </message>
    <message>
      <source>Print on</source>
      <translation>Drucken auf</translation>
    </message>
    <message>
      <source>Print these pages so</source>
      <translation>Diese Seiten so drucken</translation>
    </message>
    <message>
      <source>Printed after</source>
      <translation>Gedruckt nach</translation>
    </message>
    <message>
      <source>Printed already</source>
      <translation>Schon bedruckt</translation>
    </message>
    <message>
      <source>Printed for</source>
      <translation>Gedruckt für</translation>
    </message>
    <message>
      <source>Printed sheets</source>
      <translation>Bedruckte Blätter</translation>
    </message>
    <message>
      <source>Printed sides</source>
      <translation>Bedruckte Seiten</translation>
    </message>
    <message>
      <source>Printed, and kept on the printer</source>
      <translation>Gedruckt und am Drucker behalten</translation>
    </message>
    <message>
      <source>Printer</source>
      <translation>Drucker</translation>
    </message>
    <message>
      <source>Profile of CMYK graphics</source>
      <translation>Profil der CMYK-Grafiken</translation>
    </message>
    <message>
      <source>Profile of CMYK images</source>
      <translation>Profil der CMYK-Bilder</translation>
    </message>
    <message>
      <source>Profile of CMYK text</source>
      <translation>Profil der CMYK-Texte</translation>
    </message>
    <message>
      <source>Profile of RGB graphics</source>
      <translation>Profil der RGB-Grafiken</translation>
    </message>
    <message>
      <source>Profile of RGB images</source>
      <translation>Profil der RGB-Bilder</translation>
    </message>
    <message>
      <source>Profile of RGB text</source>
      <translation>Profil der RGB-Texte</translation>
    </message>
    <message>
      <source>Profile of gray graphics</source>
      <translation>Profil der grauen Grafiken</translation>
    </message>
    <message>
      <source>Profile of gray images</source>
      <translation>Profil der grauen Bilder</translation>
    </message>
    <message>
      <source>Profile of gray text</source>
      <translation>Profil der grauen Texte</translation>
    </message>
    <message>
      <source>Progress of drawing</source>
      <translation>Fortschritt des Zeichnens</translation>
    </message>
    <message>
      <source>Progress of the job</source>
      <translation>Fortschritt des Auftrags</translation>
    </message>
    <message>
      <source>Proof: one set first</source>
      <translation>Probe: zuerst ein Satz</translation>
    </message>
    <message>
      <source>Proof: one set, the others when it is released</source>
      <translation>Probe: ein Satz, die anderen nach der Freigabe</translation>
    </message>
    <message>
      <source>Punch choice</source>
      <translation>Lochung</translation>
    </message>
    <message>
      <source>Punched at the bottom</source>
      <translation>Unten gelocht</translation>
    </message>
    <message>
      <source>Punched at the left</source>
      <translation>Links gelocht</translation>
    </message>
    <message>
      <source>Punched at the right</source>
      <translation>Rechts gelocht</translation>
    </message>
    <message>
      <source>Punched at the top</source>
      <translation>Oben gelocht</translation>
    </message>
    <message>
      <source>Put in OPI images</source>
      <translation>OPI-Bilder einsetzen</translation>
    </message>
    <message>
      <source>Quality</source>
      <translation>Qualität</translation>
    </message>
    <message>
      <source>Reading order of a booklet</source>
      <translation>Leserichtung einer Broschüre</translation>
    </message>
    <message>
      <source>Recipient text of the cover</source>
      <translation>Empfängertext des Deckblatts</translation>
    </message>
    <message>
      <source>Recipients</source>
      <translation>Empfänger</translation>
    </message>
    <message>
      <source>Recipients on the cover</source>
      <translation>Empfänger auf dem Deckblatt</translation>
    </message>
    <message>
      <source>Recycled stock</source>
      <translation>Recyclingpapier</translation>
    </message>
    <message>
      <source>Red of a custom colour</source>
      <translation>Rotanteil einer eigenen Farbe</translation>
    </message>
    <message>
      <source>Redo: %1</source>
      <translation>Wiederherstellen: %1</translation>
    </message>
    <message>
      <source>Remove</source>
      <translation>Entfernen</translation>
    </message>
    <message>
      <source>Remove it</source>
      <translation>Entfernen</translation>
    </message>
    <message>
      <source>Rendering intent of graphics</source>
      <translation>Farbanpassung der Grafiken</translation>
    </message>
    <message>
      <source>Rendering intent of images</source>
      <translation>Farbanpassung der Bilder</translation>
    </message>
    <message>
      <source>Rendering intent of text</source>
      <translation>Farbanpassung der Texte</translation>
    </message>
    <message>
      <source>Resolution of a job that brings its own header</source>
      <translation>Auflösung eines Auftrags mit eigenem Kopf</translation>
    </message>
    <message>
      <source>Reverse landscape</source>
      <translation>Querformat, umgekehrt</translation>
    </message>
    <message>
      <source>Reverse order face down</source>
      <translation>Letzte Seite zuerst, Schrift nach unten</translation>
    </message>
    <message>
      <source>Reverse order face up</source>
      <translation>Letzte Seite zuerst, Schrift nach oben</translation>
    </message>
    <message>
      <source>Reverse portrait</source>
      <translation>Hochformat, umgekehrt</translation>
    </message>
    <message>
      <source>Royal</source>
      <translation>Königsblau</translation>
    </message>
    <message>
      <source>Ruby</source>
      <translation>Rubinrot</translation>
    </message>
    <message>
      <source>SRGB</source>
      <translation>sRGB</translation>
    </message>
    <message>
      <source>Same order face down</source>
      <translation>Erste Seite zuerst, Schrift nach unten</translation>
    </message>
    <message>
      <source>Same order face up</source>
      <translation>Erste Seite zuerst, Schrift nach oben</translation>
    </message>
    <message>
      <source>Satin</source>
      <translation>Seidenmatt</translation>
    </message>
    <message>
      <source>Saturation of a custom colour</source>
      <translation>Sättigung einer eigenen Farbe</translation>
    </message>
    <message>
      <source>Save it at the printer</source>
      <translation>Am Drucker speichern</translation>
    </message>
    <message>
      <source>Save it only</source>
      <translation>Nur speichern</translation>
    </message>
    <message>
      <source>Save it under the document's name</source>
      <translation>Unter dem Namen des Dokuments speichern</translation>
    </message>
    <message>
      <source>Save s&amp;ettings</source>
      <translation>&amp;Einstellungen speichern</translation>
    </message>
    <message>
      <source>Save settings</source>
      <translation>Einstellungen speichern</translation>
    </message>
    <message>
      <source>Save settings &amp;as…</source>
      <translation>Einstellungen speichern &amp;unter…</translation>
    </message>
    <message>
      <source>Save the changed settings to %1?</source>
      <translation>Die geänderten Einstellungen in %1 speichern?</translation>
    </message>
    <message>
      <source>Save toner</source>
      <translation>Toner sparen</translation>
    </message>
    <message>
      <source>Saved in the folder</source>
      <translation>Gespeichert im Ordner</translation>
    </message>
    <message>
      <source>Saved job</source>
      <translation>Gespeicherter Auftrag</translation>
    </message>
    <message>
      <source>Saved under the name</source>
      <translation>Gespeichert unter dem Namen</translation>
    </message>
    <message>
      <source>Secure print: held until the PIN is typed</source>
      <translation>Vertraulich: angehalten, bis die PIN getippt wird</translation>
    </message>
    <message>
      <source>Secure: wait for a PIN</source>
      <translation>Vertraulich: auf eine PIN warten</translation>
    </message>
    <message>
      <source>SecurePrintPassword: the PIN is no text; send it as ..d_SecurePrintPassword=TEXT</source>
      <translation>SecurePrintPassword: die PIN ist kein Text; senden Sie sie als ..d_SecurePrintPassword=TEXT</translation>
    </message>
    <message>
      <source>Select pages, or type some such as 5-8, 12.</source>
      <translation>Seiten markieren oder eingeben, etwa 5-8, 12.</translation>
    </message>
    <message>
      <source>Semi gloss</source>
      <translation>Halbglanz</translation>
    </message>
    <message>
      <source>Send a cover</source>
      <translation>Deckblatt senden</translation>
    </message>
    <message>
      <source>Send a cover sheet</source>
      <translation>Ein Deckblatt senden</translation>
    </message>
    <message>
      <source>Send it as a fax</source>
      <translation>Als Fax senden</translation>
    </message>
    <message>
      <source>Sender on the cover</source>
      <translation>Absender auf dem Deckblatt</translation>
    </message>
    <message>
      <source>Sender's company</source>
      <translation>Firma des Absenders</translation>
    </message>
    <message>
      <source>Sender's e-mail address</source>
      <translation>E-Mail-Adresse des Absenders</translation>
    </message>
    <message>
      <source>Sender's fax number</source>
      <translation>Faxnummer des Absenders</translation>
    </message>
    <message>
      <source>Sender's name</source>
      <translation>Name des Absenders</translation>
    </message>
    <message>
      <source>Sender's phone number</source>
      <translation>Telefonnummer des Absenders</translation>
    </message>
    <message>
      <source>Sending "%1" to %2…</source>
      <translation>„%1“ wird an %2 gesendet…</translation>
    </message>
    <message>
      <source>Sent by</source>
      <translation>Gesendet von</translation>
    </message>
    <message>
      <source>Separator sheets</source>
      <translation>Trennblätter</translation>
    </message>
    <message>
      <source>Separators between transparencies</source>
      <translation>Trennblätter zwischen Folien</translation>
    </message>
    <message>
      <source>Setting</source>
      <translation>Einstellung</translation>
    </message>
    <message>
      <source>Settings</source>
      <translation>Einstellungen</translation>
    </message>
    <message>
      <source>Shades of gray</source>
      <translation>Graustufen</translation>
    </message>
    <message>
      <source>Sheet %1</source>
      <translation>Blatt %1</translation>
    </message>
    <message>
      <source>Sheets</source>
      <translation>Blätter</translation>
    </message>
    <message>
      <source>Sheets as they are delivered</source>
      <translation>Blätter, wie sie geliefert werden</translation>
    </message>
    <message>
      <source>Sheets between the pages</source>
      <translation>Blätter zwischen den Seiten</translation>
    </message>
    <message>
      <source>Sheets in a set</source>
      <translation>Blätter je Satz</translation>
    </message>
    <message>
      <source>Sheets in an ordered set, such as tabs</source>
      <translation>Blätter in einem geordneten Satz, etwa Register</translation>
    </message>
    <message>
      <source>Shift stacks</source>
      <translation>Stapel versetzen</translation>
    </message>
    <message>
      <source>Shift the pages</source>
      <translation>Seiten verschieben</translation>
    </message>
    <message>
      <source>Shift to the right, side 1</source>
      <translation>Verschiebung nach rechts, Vorderseite</translation>
    </message>
    <message>
      <source>Shift to the right, side 2</source>
      <translation>Verschiebung nach rechts, Rückseite</translation>
    </message>
    <message>
      <source>Shift upwards, side 1</source>
      <translation>Verschiebung nach oben, Vorderseite</translation>
    </message>
    <message>
      <source>Shift upwards, side 2</source>
      <translation>Verschiebung nach oben, Rückseite</translation>
    </message>
    <message>
      <source>Side</source>
      <translation>Seite</translation>
    </message>
    <message>
      <source>Sides</source>
      <translation>Seiten</translation>
    </message>
    <message>
      <source>Sides, when FinishingDuplex does not say</source>
      <translation>Seiten, wenn FinishingDuplex nichts sagt</translation>
    </message>
    <message>
      <source>Single page tiff</source>
      <translation>TIFF, eine Datei je Seite</translation>
    </message>
    <message>
      <source>Size</source>
      <translation>Größe</translation>
    </message>
    <message>
      <source>Size of the picture</source>
      <translation>Größe des Bildes</translation>
    </message>
    <message>
      <source>Size of the sheets</source>
      <translation>Größe der Blätter</translation>
    </message>
    <message>
      <source>Size of the text</source>
      <translation>Größe des Textes</translation>
    </message>
    <message>
      <source>Slip sheets between the sets</source>
      <translation>Trennblätter zwischen den Sätzen</translation>
    </message>
    <message>
      <source>Smoothing of edges</source>
      <translation>Kantenglättung</translation>
    </message>
    <message>
      <source>Source profile of CMYK images: a code or a name</source>
      <translation>Quellprofil der CMYK-Bilder: Code oder Name</translation>
    </message>
    <message>
      <source>Source profile of CMYK text and graphics: a code or a name</source>
      <translation>Quellprofil der CMYK-Texte und -Grafiken: Code oder Name</translation>
    </message>
    <message>
      <source>Source profile of RGB images: a code or a name</source>
      <translation>Quellprofil der RGB-Bilder: Code oder Name</translation>
    </message>
    <message>
      <source>Source profile of RGB text and graphics: a code or a name</source>
      <translation>Quellprofil der RGB-Texte und -Grafiken: Code oder Name</translation>
    </message>
    <message>
      <source>Source profile of gray images</source>
      <translation>Quellprofil der grauen Bilder</translation>
    </message>
    <message>
      <source>Source profile of gray text and graphics</source>
      <translation>Quellprofil der grauen Texte und Grafiken</translation>
    </message>
    <message>
      <source>Space between booklet pages, points</source>
      <translation>Abstand zwischen den Broschürenseiten, Punkt</translation>
    </message>
    <message>
      <source>Space between the pages</source>
      <translation>Abstand zwischen den Seiten</translation>
    </message>
    <message>
      <source>Speed</source>
      <translation>Geschwindigkeit</translation>
    </message>
    <message>
      <source>Stapled bottom left</source>
      <translation>Geheftet unten links</translation>
    </message>
    <message>
      <source>Stapled bottom right</source>
      <translation>Geheftet unten rechts</translation>
    </message>
    <message>
      <source>Stapled top left</source>
      <translation>Geheftet oben links</translation>
    </message>
    <message>
      <source>Stapled top right</source>
      <translation>Geheftet oben rechts</translation>
    </message>
    <message>
      <source>Staples</source>
      <translation>Klammern</translation>
    </message>
    <message>
      <source>Staples in the fold</source>
      <translation>Klammern im Falz</translation>
    </message>
    <message>
      <source>Stock name</source>
      <translation>Papiername</translation>
    </message>
    <message>
      <source>Stock size code</source>
      <translation>Code des Papierformats</translation>
    </message>
    <message>
      <source>Store a picture…</source>
      <translation>Ein Bild speichern…</translation>
    </message>
    <message>
      <source>Store it under the document's name</source>
      <translation>Unter dem Namen des Dokuments ablegen</translation>
    </message>
    <message>
      <source>Store this text as a new one</source>
      <translation>Diesen Text als neues speichern</translation>
    </message>
    <message>
      <source>Stored as a form</source>
      <translation>Als Formular gespeichert</translation>
    </message>
    <message>
      <source>Stored form to print behind the pages</source>
      <translation>Gespeichertes Formular hinter den Seiten</translation>
    </message>
    <message>
      <source>Superfine</source>
      <translation>Superfein</translation>
    </message>
    <message>
      <source>Surface</source>
      <translation>Oberfläche</translation>
    </message>
    <message>
      <source>Surface finish</source>
      <translation>Oberfläche des Papiers</translation>
    </message>
    <message>
      <source>Taking the job back…</source>
      <translation>Der Auftrag wird zurückgenommen …</translation>
    </message>
    <message>
      <source>Template</source>
      <translation>Vorlage</translation>
    </message>
    <message>
      <source>Template of the printer</source>
      <translation>Vorlage des Druckers</translation>
    </message>
    <message>
      <source>Text on the banner page</source>
      <translation>Text auf der Bannerseite</translation>
    </message>
    <message>
      <source>That watermark on the first page only</source>
      <translation>Dieses Wasserzeichen nur auf der ersten Seite</translation>
    </message>
    <message>
      <source>That watermark over the page, else behind</source>
      <translation>Dieses Wasserzeichen über der Seite, sonst dahinter</translation>
    </message>
    <message>
      <source>The address book cannot be written: %1</source>
      <translation>Das Adressbuch kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
      <source>The address book is empty</source>
      <translation>Das Adressbuch ist leer</translation>
    </message>
    <message>
      <source>The cover's paper</source>
      <translation>Das Papier des Deckblatts</translation>
    </message>
    <message>
      <source>The document's name</source>
      <translation>Der Name des Dokuments</translation>
    </message>
    <message>
      <source>The fax cover sheet was left out</source>
      <translation>Das Fax-Deckblatt wurde weggelassen</translation>
    </message>
    <message>
      <source>The finisher has no way to do this together with what is chosen already.</source>
      <translation>Der Finisher kann dies nicht zusammen mit dem schon Gewählten.</translation>
    </message>
    <message>
      <source>The inside</source>
      <translation>Die Innenseite</translation>
    </message>
    <message>
      <source>The job</source>
      <translation>Der Auftrag</translation>
    </message>
    <message>
      <source>The job is at the spooler as %1.</source>
      <translation>Der Auftrag ist als %1 in der Warteschlange.</translation>
    </message>
    <message>
      <source>The job is being printed.</source>
      <translation>Der Auftrag wird gedruckt.</translation>
    </message>
    <message>
      <source>The job is held by the spooler.</source>
      <translation>Der Auftrag wird zurückgehalten.</translation>
    </message>
    <message>
      <source>The job waits to be printed.</source>
      <translation>Der Auftrag wartet auf den Druck.</translation>
    </message>
    <message>
      <source>The job was canceled.</source>
      <translation>Der Auftrag wurde abgebrochen.</translation>
    </message>
    <message>
      <source>The job was not printed.</source>
      <translation>Der Auftrag wurde nicht gedruckt.</translation>
    </message>
    <message>
      <source>The job was not sent.</source>
      <translation>Der Auftrag wurde nicht gesendet.</translation>
    </message>
    <message>
      <source>The job was printed.</source>
      <translation>Der Auftrag wurde gedruckt.</translation>
    </message>
    <message>
      <source>The job's paper</source>
      <translation>Das Papier des Auftrags</translation>
    </message>
    <message>
      <source>The outside</source>
      <translation>Die Außenseite</translation>
    </message>
    <message>
      <source>The pages' paper</source>
      <translation>Das Papier der Seiten</translation>
    </message>
    <message>
      <source>The printer %1 is gone. Choose another one.</source>
      <translation>Der Drucker %1 ist nicht mehr da. Wählen Sie einen anderen.</translation>
    </message>
    <message>
      <source>The printer dials %1</source>
      <translation>Der Drucker wählt %1</translation>
    </message>
    <message>
      <source>The program that makes the sheets has ended; the document needs more time or memory than it may take.</source>
      <translation>Das Programm, das die Blätter zeichnet, hat geendet; das Dokument braucht mehr Zeit oder Speicher, als es darf.</translation>
    </message>
    <message>
      <source>The program zarvosheets is missing.</source>
      <translation>Das Programm zarvosheets fehlt.</translation>
    </message>
    <message>
      <source>The sheets are finished as a booklet. Choose another finish here to have that instead.</source>
      <translation>Die Blätter werden als Broschüre verarbeitet. Wählen Sie hier etwas anderes, um dies stattdessen zu haben.</translation>
    </message>
    <message>
      <source>The sheets' paper</source>
      <translation>Das Papier der Blätter</translation>
    </message>
    <message>
      <source>The spooler cannot be asked.</source>
      <translation>Das Drucksystem kann nicht gefragt werden.</translation>
    </message>
    <message>
      <source>The spooler does not tell what becomes of the job.</source>
      <translation>Das Drucksystem sagt nicht, was aus dem Auftrag wird.</translation>
    </message>
    <message>
      <source>Their names</source>
      <translation>Ihre Namen</translation>
    </message>
    <message>
      <source>There is nothing in this to dial.</source>
      <translation>Darin ist nichts zu wählen.</translation>
    </message>
    <message>
      <source>These pages</source>
      <translation>Diese Seiten</translation>
    </message>
    <message>
      <source>Three holes</source>
      <translation>Drei Löcher</translation>
    </message>
    <message>
      <source>Three staples at the bottom</source>
      <translation>Drei Klammern unten</translation>
    </message>
    <message>
      <source>Three staples at the left</source>
      <translation>Drei Klammern links</translation>
    </message>
    <message>
      <source>Three staples at the right</source>
      <translation>Drei Klammern rechts</translation>
    </message>
    <message>
      <source>Three staples at the top</source>
      <translation>Drei Klammern oben</translation>
    </message>
    <message>
      <source>Ticket that is kept under this name, below all other settings</source>
      <translation>Hausauftrag mit diesem Namen, unter allen anderen Einstellungen</translation>
    </message>
    <message>
      <source>To</source>
      <translation>An</translation>
    </message>
    <message>
      <source>To the right, back (1/10 mm)</source>
      <translation>Nach rechts, hinten (1/10 mm)</translation>
    </message>
    <message>
      <source>To the right, front (1/10 mm)</source>
      <translation>Nach rechts, vorn (1/10 mm)</translation>
    </message>
    <message>
      <source>Tone reproduction curve</source>
      <translation>Tonwertkurve</translation>
    </message>
    <message>
      <source>Toner saving</source>
      <translation>Tonersparen</translation>
    </message>
    <message>
      <source>Tools</source>
      <translation>Werkzeuge</translation>
    </message>
    <message>
      <source>Top tray</source>
      <translation>Oberes Fach</translation>
    </message>
    <message>
      <source>Transmission speed</source>
      <translation>Übertragungsgeschwindigkeit</translation>
    </message>
    <message>
      <source>Trap width across the feed</source>
      <translation>Überfüllung quer zum Papierlauf</translation>
    </message>
    <message>
      <source>Trap width along the feed</source>
      <translation>Überfüllung längs zum Papierlauf</translation>
    </message>
    <message>
      <source>Tray</source>
      <translation>Fach</translation>
    </message>
    <message>
      <source>Tray for the output</source>
      <translation>Ausgabefach</translation>
    </message>
    <message>
      <source>Tray; 0 is the inserter behind the fuser</source>
      <translation>Fach; 0 ist der Einleger hinter der Fixierung</translation>
    </message>
    <message>
      <source>Turn booklet sheets</source>
      <translation>Broschürenbögen drehen</translation>
    </message>
    <message>
      <source>Turn the pages</source>
      <translation>Seiten drehen</translation>
    </message>
    <message>
      <source>Turn the sheets</source>
      <translation>Blätter drehen</translation>
    </message>
    <message>
      <source>Two holes</source>
      <translation>Zwei Löcher</translation>
    </message>
    <message>
      <source>Two sides</source>
      <translation>Zwei Seiten</translation>
    </message>
    <message>
      <source>Two staples</source>
      <translation>Zwei Klammern</translation>
    </message>
    <message>
      <source>Two staples at the bottom</source>
      <translation>Zwei Klammern unten</translation>
    </message>
    <message>
      <source>Two staples at the left</source>
      <translation>Zwei Klammern links</translation>
    </message>
    <message>
      <source>Two staples at the right</source>
      <translation>Zwei Klammern rechts</translation>
    </message>
    <message>
      <source>Two staples at the top</source>
      <translation>Zwei Klammern oben</translation>
    </message>
    <message>
      <source>Type</source>
      <translation>Art</translation>
    </message>
    <message>
      <source>Type a name first.</source>
      <translation>Geben Sie zuerst einen Namen ein.</translation>
    </message>
    <message>
      <source>Type a number and a name first.</source>
      <translation>Geben Sie zuerst eine Nummer und einen Namen ein.</translation>
    </message>
    <message>
      <source>Type a number that can be dialed first.</source>
      <translation>Geben Sie zuerst eine wählbare Nummer ein.</translation>
    </message>
    <message>
      <source>Type pages, or select them among the sheets.</source>
      <translation>Seiten eingeben oder unter den Blättern markieren.</translation>
    </message>
    <message>
      <source>Type the PIN that you will give at the printer.</source>
      <translation>Geben Sie die PIN ein, die Sie am Drucker eingeben werden.</translation>
    </message>
    <message>
      <source>Type the text first.</source>
      <translation>Geben Sie zuerst den Text ein.</translation>
    </message>
    <message>
      <source>Uncollated</source>
      <translation>Unsortiert</translation>
    </message>
    <message>
      <source>Undo: %1</source>
      <translation>Rückgängig: %1</translation>
    </message>
    <message>
      <source>Upside down</source>
      <translation>Auf dem Kopf</translation>
    </message>
    <message>
      <source>Upwards, back (1/10 mm)</source>
      <translation>Nach oben, hinten (1/10 mm)</translation>
    </message>
    <message>
      <source>Upwards, front (1/10 mm)</source>
      <translation>Nach oben, vorn (1/10 mm)</translation>
    </message>
    <message>
      <source>Use ready</source>
      <translation>Vorhandenes nehmen</translation>
    </message>
    <message>
      <source>Use these settings</source>
      <translation>Diese Einstellungen verwenden</translation>
    </message>
    <message>
      <source>User</source>
      <translation>Benutzer</translation>
    </message>
    <message>
      <source>User, with or without an account</source>
      <translation>Benutzer, mit oder ohne Konto</translation>
    </message>
    <message>
      <source>Value of a custom colour</source>
      <translation>Helligkeit einer eigenen Farbe</translation>
    </message>
    <message>
      <source>Values are in 1/100 inch, else in 1/10 mm</source>
      <translation>Werte in 1/100 Zoll, sonst in 1/10 mm</translation>
    </message>
    <message>
      <source>Values are in 1/100 mm already</source>
      <translation>Werte schon in 1/100 mm</translation>
    </message>
    <message>
      <source>Violet</source>
      <translation>Violett</translation>
    </message>
    <message>
      <source>Watermark by its name</source>
      <translation>Wasserzeichen nach Namen</translation>
    </message>
    <message>
      <source>Watermark by its place in the list; 1 is none</source>
      <translation>Wasserzeichen nach Platz in der Liste; 1 ist keines</translation>
    </message>
    <message>
      <source>Watermark on the cover</source>
      <translation>Wasserzeichen auf dem Deckblatt</translation>
    </message>
    <message>
      <source>Watermark on the first page only</source>
      <translation>Wasserzeichen nur auf der ersten Seite</translation>
    </message>
    <message>
      <source>Weight</source>
      <translation>Gewicht</translation>
    </message>
    <message>
      <source>Weight, g/m2</source>
      <translation>Gewicht, g/m²</translation>
    </message>
    <message>
      <source>What I changed</source>
      <translation>Was ich geändert habe</translation>
    </message>
    <message>
      <source>What becomes of it</source>
      <translation>Was daraus wird</translation>
    </message>
    <message>
      <source>What becomes of the job</source>
      <translation>Was aus dem Auftrag wird</translation>
    </message>
    <message>
      <source>What is other than the rest</source>
      <translation>Was anders ist als das Übrige</translation>
    </message>
    <message>
      <source>What you keep for this printer yourself (lpoptions), in every job:</source>
      <translation>Was Sie selbst für diesen Drucker festgelegt haben (lpoptions), gilt in jedem Auftrag:</translation>
    </message>
    <message>
      <source>When</source>
      <translation>Wann</translation>
    </message>
    <message>
      <source>When a delayed job is printed</source>
      <translation>Wann ein späterer Auftrag gedruckt wird</translation>
    </message>
    <message>
      <source>When it is sent</source>
      <translation>Wann es gesendet wird</translation>
    </message>
    <message>
      <source>When the colorant is not loaded</source>
      <translation>Wenn das Farbmittel fehlt</translation>
    </message>
    <message>
      <source>Where</source>
      <translation>Wo</translation>
    </message>
    <message>
      <source>Where the sheets come out</source>
      <translation>Wo die Blätter herauskommen</translation>
    </message>
    <message>
      <source>Where the watermark goes</source>
      <translation>Wohin das Wasserzeichen kommt</translation>
    </message>
    <message>
      <source>Whether a saved job is printed too</source>
      <translation>Ob ein gespeicherter Auftrag auch gedruckt wird</translation>
    </message>
    <message>
      <source>Which sections the XML ticket has; only the presence of a key counts</source>
      <translation>Welche Abschnitte das XML-Auftragsticket hat; es zählt nur, ob ein Schlüssel da ist</translation>
    </message>
    <message>
      <source>Which sides are coated</source>
      <translation>Welche Seiten beschichtet sind</translation>
    </message>
    <message>
      <source>Which sides of the cover are printed</source>
      <translation>Welche Seiten des Deckblatts bedruckt werden</translation>
    </message>
    <message>
      <source>Which watermark</source>
      <translation>Welches Wasserzeichen</translation>
    </message>
    <message>
      <source>Who gets the printout</source>
      <translation>Wer den Ausdruck bekommt</translation>
    </message>
    <message>
      <source>Who sends the job</source>
      <translation>Wer den Auftrag sendet</translation>
    </message>
    <message>
      <source>Width of a size without a code, 1/100 mm</source>
      <translation>Breite eines Formats ohne Code, 1/100 mm</translation>
    </message>
    <message>
      <source>Without a fax number, and so left out: %1</source>
      <translation>Ohne Faxnummer und deshalb ausgelassen: %1</translation>
    </message>
    <message>
      <source>Write the XML ticket</source>
      <translation>XML-Auftragsticket schreiben</translation>
    </message>
    <message>
      <source>X grain</source>
      <translation>Quer zur Laufrichtung</translation>
    </message>
    <message>
      <source>Y grain</source>
      <translation>Längs der Laufrichtung</translation>
    </message>
    <message>
      <source>Yellow to blue</source>
      <translation>Gelb nach Blau</translation>
    </message>
    <message>
      <source>Yes</source>
      <translation>Ja</translation>
    </message>
    <message>
      <source>Z fold 1</source>
      <translation>Zickzackfalz 1</translation>
    </message>
    <message>
      <source>Z fold 2</source>
      <translation>Zickzackfalz 2</translation>
    </message>
    <message>
      <source>Z-fold</source>
      <translation>Zickzackfalz</translation>
    </message>
    <message>
      <source>a PIN takes 4 to 10 digits</source>
      <translation>eine PIN hat 4 bis 10 Ziffern</translation>
    </message>
    <message>
      <source>a date such as "2026-12-31T18:30"</source>
      <translation>ein Datum wie „2026-12-31T18:30“</translation>
    </message>
    <message>
      <source>a delayed job</source>
      <translation>ein späterer Auftrag</translation>
    </message>
    <message>
      <source>a delayed job needs a DelayedPrintTime</source>
      <translation>ein Auftrag für später braucht eine Zeit (DelayedPrintTime)</translation>
    </message>
    <message>
      <source>a fax</source>
      <translation>ein Fax</translation>
    </message>
    <message>
      <source>a group of keys</source>
      <translation>eine Gruppe von Schlüsseln</translation>
    </message>
    <message>
      <source>a job of this type</source>
      <translation>ein Auftrag dieser Art</translation>
    </message>
    <message>
      <source>a list of groups</source>
      <translation>eine Liste von Gruppen</translation>
    </message>
    <message>
      <source>a name has at least one character</source>
      <translation>ein Name hat mindestens ein Zeichen</translation>
    </message>
    <message>
      <source>a name has at most %1 bytes</source>
      <translation>ein Name hat höchstens %1 Byte</translation>
    </message>
    <message>
      <source>a name has no control characters</source>
      <translation>ein Name hat keine Steuerzeichen</translation>
    </message>
    <message>
      <source>a name is UTF-8 with composed characters</source>
      <translation>ein Name ist UTF-8 mit zusammengesetzten Zeichen</translation>
    </message>
    <message>
      <source>a sample set</source>
      <translation>ein Probesatz</translation>
    </message>
    <message>
      <source>a secure job needs a PIN; give one as JobPIN=Custom.DIGITS (%1)</source>
      <translation>ein vertraulicher Auftrag braucht eine PIN (%1); tippen Sie sie unter „Auftrag“</translation>
    </message>
    <message>
      <source>a text</source>
      <translation>ein Text</translation>
    </message>
    <message>
      <source>a whole number</source>
      <translation>eine ganze Zahl</translation>
    </message>
    <message>
      <source>accounting: the job names no account</source>
      <translation>Kostenabrechnung: der Auftrag nennt kein Konto</translation>
    </message>
    <message>
      <source>accounting: the job names no user</source>
      <translation>Kostenabrechnung: der Auftrag nennt keinen Benutzer</translation>
    </message>
    <message>
      <source>add %1</source>
      <translation>ergänzen Sie %1</translation>
    </message>
    <message>
      <source>an image</source>
      <translation>ein Bild</translation>
    </message>
    <message>
      <source>an option that nobody knows looks like a misspelt PIN; did you mean %1?</source>
      <translation>eine unbekannte Option sieht aus wie eine falsch geschriebene PIN; meinten Sie %1?</translation>
    </message>
    <message>
      <source>an ordinary job</source>
      <translation>ein gewöhnlicher Auftrag</translation>
    </message>
    <message>
      <source>another program keeps it locked; try again soon</source>
      <translation>ein anderes Programm hält es gesperrt; versuchen Sie es gleich noch einmal</translation>
    </message>
    <message>
      <source>any page</source>
      <translation>keiner Seite</translation>
    </message>
    <message>
      <source>anything</source>
      <translation>etwas Beliebiges</translation>
    </message>
    <message>
      <source>around the booklet</source>
      <translation>um die Broschüre herum</translation>
    </message>
    <message>
      <source>behind the page</source>
      <translation>hinter der Seite</translation>
    </message>
    <message>
      <source>cannot be converted here; install the packages cups and cups-filters</source>
      <translation>kann hier nicht umgewandelt werden; installieren Sie die Pakete cups und cups-filters</translation>
    </message>
    <message>
      <source>cannot be converted: %1</source>
      <translation>kann nicht umgewandelt werden: %1</translation>
    </message>
    <message>
      <source>did you mean %1?</source>
      <translation>meinten Sie %1?</translation>
    </message>
    <message>
      <source>fax settings have no effect in a job that is no fax</source>
      <translation>Fax-Einstellungen wirken nicht in einem Auftrag, der kein Fax ist</translation>
    </message>
    <message>
      <source>fax: %1 is cut, the printer takes %2 bytes; shorten it</source>
      <translation>Fax: %1 wird gekürzt, der Drucker nimmt %2 Byte; kürzen Sie es</translation>
    </message>
    <message>
      <source>give %1</source>
      <translation>geben Sie %1 an</translation>
    </message>
    <message>
      <source>has no effect while no XML ticket is written; set %1 to 1</source>
      <translation>wirkt nicht, solange kein XML-Ticket geschrieben wird; setzen Sie %1 auf 1</translation>
    </message>
    <message>
      <source>has no effect without %1; add {"JTMLOptionAll": true} there</source>
      <translation>wirkt nicht ohne %1; ergänzen Sie dort {"JTMLOptionAll": true}</translation>
    </message>
    <message>
      <source>in the middle of the booklet</source>
      <translation>in der Mitte der Broschüre</translation>
    </message>
    <message>
      <source>insert</source>
      <translation>Einlegeblatt</translation>
    </message>
    <message>
      <source>is empty: neither PostScript nor PDF</source>
      <translation>ist leer: weder PostScript noch PDF</translation>
    </message>
    <message>
      <source>is no whole number</source>
      <translation>ist keine ganze Zahl</translation>
    </message>
    <message>
      <source>is not printed with such settings</source>
      <translation>wird mit solchen Einstellungen nicht gedruckt</translation>
    </message>
    <message>
      <source>is nothing that the spooler can print: %1</source>
      <translation>ist nichts, was das Drucksystem drucken kann: %1</translation>
    </message>
    <message>
      <source>it takes %1 to %2</source>
      <translation>möglich ist %1 bis %2</translation>
    </message>
    <message>
      <source>its fax cover sheet cannot be drawn</source>
      <translation>sein Fax-Deckblatt kann nicht gezeichnet werden</translation>
    </message>
    <message>
      <source>more PJL lines than any job needs</source>
      <translation>mehr PJL-Zeilen, als ein Auftrag braucht</translation>
    </message>
    <message>
      <source>more PostScript jobs than can be told apart</source>
      <translation>mehr PostScript-Aufträge, als unterschieden werden können</translation>
    </message>
    <message>
      <source>no PJL envelope: the printer takes it for plain PostScript</source>
      <translation>kein PJL-Umschlag: der Drucker hält es für bloßes PostScript</translation>
    </message>
    <message>
      <source>no PostScript document</source>
      <translation>kein PostScript-Dokument</translation>
    </message>
    <message>
      <source>no page comments: pages cannot be counted, and nothing can be drawn on them</source>
      <translation>keine Seitenkommentare: Seiten können weder gezählt noch ergänzt werden</translation>
    </message>
    <message>
      <source>no page is printed</source>
      <translation>keine Seite wird gedruckt</translation>
    </message>
    <message>
      <source>no stock has the code %1; take a known one, or give Width and Length</source>
      <translation>kein Papier hat den Code %1; nehmen Sie einen bekannten, oder geben Sie Breite und Länge an</translation>
    </message>
    <message>
      <source>not a byte of it came: the document has none of these pages (page-ranges, page-set), or a program before this filter failed; choose others, or look what it says</source>
      <translation>es kam kein einziges Byte: Das Dokument hat keine dieser Seiten (page-ranges, page-set), oder ein Programm vor diesem Filter ist gescheitert; wählen Sie andere Seiten oder sehen Sie nach, was das Programm meldet</translation>
    </message>
    <message>
      <source>not a byte of it came; look for what the programs before this filter say, make room on their disk and send it again</source>
      <translation>es kam kein einziges Byte; sehen Sie nach, was die Programme vor diesem Filter melden, schaffen Sie Platz auf ihrer Platte und senden Sie ihn noch einmal</translation>
    </message>
    <message>
      <source>not printed</source>
      <translation>nicht bedruckt</translation>
    </message>
    <message>
      <source>on the first page only</source>
      <translation>nur auf der ersten Seite</translation>
    </message>
    <message>
      <source>other paper</source>
      <translation>anderes Papier</translation>
    </message>
    <message>
      <source>other settings for the pages %1</source>
      <translation>andere Einstellungen für die Seiten %1</translation>
    </message>
    <message>
      <source>over the page</source>
      <translation>über der Seite</translation>
    </message>
    <message>
      <source>over the page, which shows through</source>
      <translation>über der Seite, die durchscheint</translation>
    </message>
    <message>
      <source>page %1</source>
      <translation>Seite %1</translation>
    </message>
    <message>
      <source>page-ranges, page-set: the document has none of these pages, nothing comes out</source>
      <translation>page-ranges, page-set: das Dokument hat keine dieser Seiten, es kommt nichts heraus</translation>
    </message>
    <message>
      <source>print it again as the reason says</source>
      <translation>Drucken Sie es noch einmal, wie der Grund es sagt</translation>
    </message>
    <message>
      <source>print it again as the reason says, and remove this one: cancel %1</source>
      <translation>Drucken Sie es noch einmal, wie der Grund es sagt, und entfernen Sie diesen Auftrag: cancel %1</translation>
    </message>
    <message>
      <source>recipient %1 of the fax cannot be read; send it as a group of settings</source>
      <translation>Empfänger %1 des Faxes kann nicht gelesen werden; senden Sie ihn als Gruppe von Einstellungen</translation>
    </message>
    <message>
      <source>recipient %1 of the fax has a number with nothing that can be dialed; correct it</source>
      <translation>Empfänger %1 des Faxes hat eine Nummer, in der nichts zu wählen ist; berichtigen Sie sie</translation>
    </message>
    <message>
      <source>recipient %1 of the fax has no number; give one</source>
      <translation>Empfänger %1 des Faxes hat keine Nummer; geben Sie eine an</translation>
    </message>
    <message>
      <source>secure, but no PIN is set</source>
      <translation>vertraulich, aber ohne PIN</translation>
    </message>
    <message>
      <source>slip sheet after the set</source>
      <translation>Trennblatt nach dem Satz</translation>
    </message>
    <message>
      <source>such as 5-8, 12</source>
      <translation>etwa 5-8, 12</translation>
    </message>
    <message>
      <source>takes %1</source>
      <translation>nimmt %1</translation>
    </message>
    <message>
      <source>takes %1: %2</source>
      <translation>nimmt %1: %2</translation>
    </message>
    <message>
      <source>takes %1; did you mean "%2"?</source>
      <translation>nimmt %1; meinten Sie „%2“?</translation>
    </message>
    <message>
      <source>the PIN is cut on its way to the printer; %1 safely</source>
      <translation>die PIN wird auf dem Weg zum Drucker gekürzt; sicher ist: %1</translation>
    </message>
    <message>
      <source>the PostScript does not end (%%EOF)</source>
      <translation>das PostScript endet nicht (%%EOF)</translation>
    </message>
    <message>
      <source>the XML ticket does not end</source>
      <translation>das XML-Auftragsticket endet nicht</translation>
    </message>
    <message>
      <source>the document does not begin with %!PS-Adobe, so its PIN or fax number would not hold; print it by another program</source>
      <translation>das Dokument beginnt nicht mit %!PS-Adobe, daher würde seine PIN oder Faxnummer nicht gelten; drucken Sie es mit einem anderen Programm</translation>
    </message>
    <message>
      <source>the document ends the printer's job before its own end; what follows may be missing on paper; print it by another program</source>
      <translation>das Dokument beendet den Auftrag des Druckers vor seinem eigenen Ende; was folgt, kann auf dem Papier fehlen; drucken Sie es mit einem anderen Programm</translation>
    </message>
    <message>
      <source>the end of the job (PJL EOJ) is missing</source>
      <translation>das Ende des Auftrags (PJL EOJ) fehlt</translation>
    </message>
    <message>
      <source>the fax has no %1; send its settings along</source>
      <translation>das Fax hat kein %1; senden Sie seine Einstellungen mit</translation>
    </message>
    <message>
      <source>the fax has no recipient that can be read; give FaxNumber=Custom.NUMBER</source>
      <translation>das Fax hat keinen lesbaren Empfänger; fügen Sie unter „Fax“ einen hinzu</translation>
    </message>
    <message>
      <source>the figure has a preview for DOS around it, which printers do not understand, so nothing may come out; "ps2pdf -dEPSCrop" makes a PDF of it that can be printed</source>
      <translation>die Abbildung hat eine Vorschau für DOS um sich, die Drucker nicht verstehen, so dass vielleicht nichts herauskommt; "ps2pdf -dEPSCrop" macht daraus ein PDF, das gedruckt werden kann</translation>
    </message>
    <message>
      <source>the figure has no page comments, so the spooler has found no page in it and nothing comes out; "ps2pdf -dEPSCrop" makes a PDF of it that can be printed</source>
      <translation>die Abbildung hat keine Seitenkommentare, darum hat der Spooler keine Seite darin gefunden, und es kommt nichts heraus; "ps2pdf -dEPSCrop" macht daraus ein PDF, das gedruckt werden kann</translation>
    </message>
    <message>
      <source>the job header holds a line that is no PJL</source>
      <translation>im Kopf des Auftrags steht eine Zeile, die kein PJL ist</translation>
    </message>
    <message>
      <source>the job holds no PostScript</source>
      <translation>der Auftrag enthält kein PostScript</translation>
    </message>
    <message>
      <source>the job was cut short: the document goes on behind its end or an exit from its language, where its PIN or fax number does not hold any more; print it by another program</source>
      <translation>der Auftrag wurde abgeschnitten: Das Dokument geht hinter seinem Ende oder einem Ausstieg aus seiner Sprache weiter, wo seine PIN oder Faxnummer nicht mehr gilt; drucken Sie es mit einem anderen Programm</translation>
    </message>
    <message>
      <source>the job was not printed</source>
      <translation>der Auftrag wurde nicht gedruckt</translation>
    </message>
    <message>
      <source>the printer stops after page %1: %2</source>
      <translation>der Drucker hört nach Seite %1 auf: %2</translation>
    </message>
    <message>
      <source>the printer stops before the first page: %1</source>
      <translation>der Drucker hört vor der ersten Seite auf: %1</translation>
    </message>
    <message>
      <source>the printer would print no page of this job</source>
      <translation>der Drucker würde keine Seite dieses Auftrags drucken</translation>
    </message>
    <message>
      <source>the scrambled form of this PIN would end the printer's line; %1 safely</source>
      <translation>diese PIN würde verwürfelt die Zeile des Druckers beenden; sicher ist: %1</translation>
    </message>
    <message>
      <source>the sheets are folded in the middle, but the pages are not laid out as a booklet</source>
      <translation>die Blätter werden in der Mitte gefalzt, aber die Seiten sind nicht als Broschüre angeordnet</translation>
    </message>
    <message>
      <source>the spooler did not say that it has the document</source>
      <translation>das Drucksystem hat nicht bestätigt, dass es das Dokument hat</translation>
    </message>
    <message>
      <source>the spooler does not answer; start it, for example with "systemctl start cups"</source>
      <translation>das Drucksystem antwortet nicht; starten Sie es, zum Beispiel mit „systemctl start cups“</translation>
    </message>
    <message>
      <source>the watermark behind the page cannot be seen on %1, where the document paints its own ground; put it over the page (WMPlace=Overlay)</source>
      <translation>das Wasserzeichen hinter der Seite ist auf %1 nicht zu sehen, weil das Dokument dort seinen eigenen Grund malt; legen Sie es über die Seite</translation>
    </message>
    <message>
      <source>the watermark's image was left out or is not whole; the log tells why, the administrator can store it anew</source>
      <translation>das Bild des Wasserzeichens wurde weggelassen oder ist nicht vollständig; das Protokoll sagt warum, der Verwalter kann es neu speichern</translation>
    </message>
    <message>
      <source>there is no such queue</source>
      <translation>es gibt keine solche Warteschlange</translation>
    </message>
    <message>
      <source>there is no such queue; did you mean %1?</source>
      <translation>es gibt keine solche Warteschlange; meinten Sie %1?</translation>
    </message>
    <message>
      <source>true or false</source>
      <translation>ja oder nein</translation>
    </message>
    <message>
      <source>unknown key</source>
      <translation>unbekannter Schlüssel</translation>
    </message>
    <message>
      <source>unknown key; did you mean %1?</source>
      <translation>unbekannter Schlüssel; meinten Sie %1?</translation>
    </message>
    <message>
      <source>unknown option; did you mean %1?</source>
      <translation>unbekannte Option; meinten Sie %1?</translation>
    </message>
    <message>
      <source>watermark %1 was left out: the store has %2; "zarvo watermark list" shows them</source>
      <translation>Wasserzeichen %1 wurde weggelassen: gespeichert sind %2; "zarvo watermark list" zeigt sie</translation>
    </message>
    <message>
      <source>watermark: a page is a picture, which does not tell how it is read, so its mark stands upright on the paper; when that is wrong, which a preview shows, say WMTurn=90 or WMTurn=270</source>
      <translation>Wasserzeichen: eine Seite ist ein Bild, das nicht sagt, wie es gelesen wird; ihr Zeichen steht darum aufrecht auf dem Papier; ist das falsch, was eine Vorschau zeigt, geben Sie WMTurn=90 oder WMTurn=270 an</translation>
    </message>
  </context>
</TS>
