<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
  <context>
    <name>desk</name>
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
      <source>%1 (group)</source>
      <translation>%1 (Gruppe)</translation>
    </message>
    <message>
      <source>%1 (not stored here)</source>
      <translation>%1 (hier nicht gespeichert)</translation>
    </message>
    <message>
      <source>%1 cannot be read.</source>
      <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
      <source>%1 does not take "%2".</source>
      <translation>%1 nimmt „%2“ nicht an.</translation>
    </message>
    <message>
      <source>%1 g/m²</source>
      <translation>%1 g/m²</translation>
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
      <translation>&amp;Alle Bögen</translation>
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
      <source>A text of one's own</source>
      <translation>Ein eigener Text</translation>
    </message>
    <message>
      <source>Account</source>
      <translation>Konto</translation>
    </message>
    <message>
      <source>Account for it</source>
      <translation>Abrechnung</translation>
    </message>
    <message>
      <source>Accounting</source>
      <translation>Abrechnung</translation>
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
      <source>Address book</source>
      <translation>Adressbuch</translation>
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
      <source>Automatic</source>
      <translation>Automatisch</translation>
    </message>
    <message>
      <source>Back cover</source>
      <translation>Rückumschlag</translation>
    </message>
    <message>
      <source>Back printed</source>
      <translation>Rückseite bedruckt</translation>
    </message>
    <message>
      <source>Banner page</source>
      <translation>Deckblatt</translation>
    </message>
    <message>
      <source>Behind the page</source>
      <translation>Hinter der Seite</translation>
    </message>
    <message>
      <source>Black and gray</source>
      <translation>Schwarz und Grau</translation>
    </message>
    <message>
      <source>Blue</source>
      <translation>Blau</translation>
    </message>
    <message>
      <source>Booklet</source>
      <translation>Broschüre</translation>
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
      <source>Buff</source>
      <translation>Sandfarben</translation>
    </message>
    <message>
      <source>By user</source>
      <translation>Nach Benutzer</translation>
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
      <source>C fold</source>
      <translation>Wickelfalz</translation>
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
      <source>Clear</source>
      <translation>Durchsichtig</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>Schließen</translation>
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
      <source>Company</source>
      <translation>Firma</translation>
    </message>
    <message>
      <source>Contrast</source>
      <translation>Kontrast</translation>
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
      <source>Cover</source>
      <translation>Umschlag</translation>
    </message>
    <message>
      <source>Cover sheet</source>
      <translation>Deckblatt</translation>
    </message>
    <message>
      <source>Covers and pages</source>
      <translation>Umschläge und Seiten</translation>
    </message>
    <message>
      <source>Creep for each sheet</source>
      <translation>Bundzuwachs je Bogen</translation>
    </message>
    <message>
      <source>Custom %1</source>
      <translation>Eigenes %1</translation>
    </message>
    <message>
      <source>Dialled before every number</source>
      <translation>Vor jeder Nummer gewählt</translation>
    </message>
    <message>
      <source>Do this</source>
      <translation>Das tun</translation>
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
      <source>Each set</source>
      <translation>Jeden Satz</translation>
    </message>
    <message>
      <source>Each subset</source>
      <translation>Jeden Teilsatz</translation>
    </message>
    <message>
      <source>Envelopes</source>
      <translation>Umschläge (Post)</translation>
    </message>
    <message>
      <source>Fax</source>
      <translation>Fax</translation>
    </message>
    <message>
      <source>Fax recipients</source>
      <translation>Faxempfänger</translation>
    </message>
    <message>
      <source>Find a setting</source>
      <translation>Eine Einstellung suchen</translation>
    </message>
    <message>
      <source>Fine</source>
      <translation>Fein</translation>
    </message>
    <message>
      <source>Finish</source>
      <translation>Verarbeitung</translation>
    </message>
    <message>
      <source>Finishing</source>
      <translation>Verarbeitung</translation>
    </message>
    <message>
      <source>Fold</source>
      <translation>Falz</translation>
    </message>
    <message>
      <source>Fold and staple in the fold</source>
      <translation>Falzen und im Falz heften</translation>
    </message>
    <message>
      <source>Fold in the middle</source>
      <translation>In der Mitte falzen</translation>
    </message>
    <message>
      <source>Folder at the printer</source>
      <translation>Ordner am Drucker</translation>
    </message>
    <message>
      <source>Frame around each page</source>
      <translation>Rahmen um jede Seite</translation>
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
      <source>Front cover</source>
      <translation>Vorderumschlag</translation>
    </message>
    <message>
      <source>Front printed</source>
      <translation>Vorderseite bedruckt</translation>
    </message>
    <message>
      <source>General account</source>
      <translation>Allgemeines Konto</translation>
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
      <source>Goldenrod</source>
      <translation>Goldgelb</translation>
    </message>
    <message>
      <source>Gray</source>
      <translation>Grau</translation>
    </message>
    <message>
      <source>Green</source>
      <translation>Grün</translation>
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
      <source>Half Z fold</source>
      <translation>Halber Z-Falz</translation>
    </message>
    <message>
      <source>Half Z fold, other side</source>
      <translation>Halber Z-Falz, andere Seite</translation>
    </message>
    <message>
      <source>Half fold</source>
      <translation>Einbruchfalz</translation>
    </message>
    <message>
      <source>Halftone screen</source>
      <translation>Raster</translation>
    </message>
    <message>
      <source>Hold it at the printer</source>
      <translation>Am Drucker zurückhalten</translation>
    </message>
    <message>
      <source>Holes</source>
      <translation>Löcher</translation>
    </message>
    <message>
      <source>Holes, folds and binding</source>
      <translation>Löcher, Falze und Bindung</translation>
    </message>
    <message>
      <source>House tickets</source>
      <translation>Hausvorlagen</translation>
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
      <source>Insert</source>
      <translation>Einlage</translation>
    </message>
    <message>
      <source>Insert them after these pages</source>
      <translation>Nach diesen Seiten einlegen</translation>
    </message>
    <message>
      <source>Ivory</source>
      <translation>Elfenbein</translation>
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
      <source>Keep the settings under a name</source>
      <translation>Die Einstellungen unter einem Namen behalten</translation>
    </message>
    <message>
      <source>Kept as %1. "zarvo ticket list" shows all that are kept.</source>
      <translation>Als %1 behalten. „zarvo ticket list“ zeigt alle.</translation>
    </message>
    <message>
      <source>Kind</source>
      <translation>Art</translation>
    </message>
    <message>
      <source>Labels</source>
      <translation>Etiketten</translation>
    </message>
    <message>
      <source>Layout</source>
      <translation>Anordnung</translation>
    </message>
    <message>
      <source>Lightness</source>
      <translation>Helligkeit</translation>
    </message>
    <message>
      <source>Make or change a watermark</source>
      <translation>Ein Wasserzeichen anlegen oder ändern</translation>
    </message>
    <message>
      <source>Message to the operator</source>
      <translation>Nachricht an den Bediener</translation>
    </message>
    <message>
      <source>Mirrored</source>
      <translation>Gespiegelt</translation>
    </message>
    <message>
      <source>Name</source>
      <translation>Name</translation>
    </message>
    <message>
      <source>Name that the printer knows it by</source>
      <translation>Name, unter dem der Drucker es kennt</translation>
    </message>
    <message>
      <source>Name to save it under</source>
      <translation>Name, unter dem gespeichert wird</translation>
    </message>
    <message>
      <source>Negative</source>
      <translation>Negativ</translation>
    </message>
    <message>
      <source>New</source>
      <translation>Neu</translation>
    </message>
    <message>
      <source>No booklet</source>
      <translation>Keine Broschüre</translation>
    </message>
    <message>
      <source>No cover</source>
      <translation>Kein Umschlag</translation>
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
      <source>None</source>
      <translation>Keine</translation>
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
      <source>Off</source>
      <translation>Aus</translation>
    </message>
    <message>
      <source>On</source>
      <translation>Ein</translation>
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
      <translation>Ein Bogen, groß</translation>
    </message>
    <message>
      <source>One side of each sheet</source>
      <translation>Eine Seite jedes Blattes</translation>
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
      <source>Orange</source>
      <translation>Orange</translation>
    </message>
    <message>
      <source>Over the page</source>
      <translation>Über der Seite</translation>
    </message>
    <message>
      <source>Over the page, see-through</source>
      <translation>Über der Seite, durchscheinend</translation>
    </message>
    <message>
      <source>PIN (4 to 10 digits)</source>
      <translation>PIN (4 bis 10 Ziffern)</translation>
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
      <source>Page exception</source>
      <translation>Seitenausnahme</translation>
    </message>
    <message>
      <source>Pages</source>
      <translation>Seiten</translation>
    </message>
    <message>
      <source>Pages %1 to %2</source>
      <translation>Seiten %1 bis %2</translation>
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
      <source>Paper kind</source>
      <translation>Papierart</translation>
    </message>
    <message>
      <source>Paper weight</source>
      <translation>Papiergewicht</translation>
    </message>
    <message>
      <source>Picture for a watermark</source>
      <translation>Bild für ein Wasserzeichen</translation>
    </message>
    <message>
      <source>Pink</source>
      <translation>Rosa</translation>
    </message>
    <message>
      <source>Preprinted</source>
      <translation>Vorgedruckt</translation>
    </message>
    <message>
      <source>Print</source>
      <translation>Drucken</translation>
    </message>
    <message>
      <source>Print a confirmation</source>
      <translation>Bestätigung drucken</translation>
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
      <source>Printed</source>
      <translation>Bedruckt</translation>
    </message>
    <message>
      <source>Printer</source>
      <translation>Drucker</translation>
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
      <source>Quality</source>
      <translation>Qualität</translation>
    </message>
    <message>
      <source>Recipients</source>
      <translation>Empfänger</translation>
    </message>
    <message>
      <source>Recycled</source>
      <translation>Recycling</translation>
    </message>
    <message>
      <source>Red</source>
      <translation>Rot</translation>
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
      <source>Resolution</source>
      <translation>Auflösung</translation>
    </message>
    <message>
      <source>Saturation</source>
      <translation>Sättigung</translation>
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
      <source>Secure: wait for a PIN</source>
      <translation>Vertraulich: auf eine PIN warten</translation>
    </message>
    <message>
      <source>Select pages, or type some such as 5-8, 12.</source>
      <translation>Seiten markieren oder eingeben, etwa 5-8, 12.</translation>
    </message>
    <message>
      <source>Send a cover</source>
      <translation>Deckblatt senden</translation>
    </message>
    <message>
      <source>Send it as a fax</source>
      <translation>Als Fax senden</translation>
    </message>
    <message>
      <source>Sending "%1" to %2…</source>
      <translation>„%1“ wird an %2 gesendet…</translation>
    </message>
    <message>
      <source>Separators between transparencies</source>
      <translation>Trennblätter zwischen Folien</translation>
    </message>
    <message>
      <source>Sets and subsets</source>
      <translation>Sätze und Teilsätze</translation>
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
      <source>Sheet %1</source>
      <translation>Blatt %1</translation>
    </message>
    <message>
      <source>Sheets</source>
      <translation>Blätter</translation>
    </message>
    <message>
      <source>Sheets as they are delivered</source>
      <translation>Bögen, wie sie geliefert werden</translation>
    </message>
    <message>
      <source>Sheets between the pages</source>
      <translation>Blätter zwischen den Seiten</translation>
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
      <source>Size</source>
      <translation>Größe</translation>
    </message>
    <message>
      <source>Size of the sheets</source>
      <translation>Größe der Bögen</translation>
    </message>
    <message>
      <source>Slip sheets between the sets</source>
      <translation>Trennblätter zwischen den Sätzen</translation>
    </message>
    <message>
      <source>Smooth edges</source>
      <translation>Kanten glätten</translation>
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
      <source>Stacker</source>
      <translation>Stapler</translation>
    </message>
    <message>
      <source>Stacker 1</source>
      <translation>Stapler 1</translation>
    </message>
    <message>
      <source>Stacker 2</source>
      <translation>Stapler 2</translation>
    </message>
    <message>
      <source>Standard</source>
      <translation>Standard</translation>
    </message>
    <message>
      <source>Staples</source>
      <translation>Klammern</translation>
    </message>
    <message>
      <source>Store a picture…</source>
      <translation>Ein Bild speichern…</translation>
    </message>
    <message>
      <source>Store this text</source>
      <translation>Diesen Text speichern</translation>
    </message>
    <message>
      <source>Superfine</source>
      <translation>Superfein</translation>
    </message>
    <message>
      <source>Tabs</source>
      <translation>Registerblätter</translation>
    </message>
    <message>
      <source>Template of the printer</source>
      <translation>Vorlage des Druckers</translation>
    </message>
    <message>
      <source>Text</source>
      <translation>Text</translation>
    </message>
    <message>
      <source>Text on the banner page</source>
      <translation>Text auf dem Deckblatt</translation>
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
      <source>The finisher has no way to do this together with what is chosen already.</source>
      <translation>Der Finisher kann dies nicht zusammen mit dem schon Gewählten.</translation>
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
      <source>The printer %1 is gone.</source>
      <translation>Der Drucker %1 ist nicht mehr da.</translation>
    </message>
    <message>
      <source>The printer dials %1</source>
      <translation>Der Drucker wählt %1</translation>
    </message>
    <message>
      <source>The program that makes the sheets has ended; the document needs more time or memory than it may take.</source>
      <translation>Das Programm, das die Bögen zeichnet, hat geendet; das Dokument braucht mehr Zeit oder Speicher, als es darf.</translation>
    </message>
    <message>
      <source>The program zarvosheets is missing.</source>
      <translation>Das Programm zarvosheets fehlt.</translation>
    </message>
    <message>
      <source>The sheets are finished as a booklet. Choose another finish here to have that instead.</source>
      <translation>Die Bögen werden als Broschüre verarbeitet. Wählen Sie hier etwas anderes, um dies stattdessen zu haben.</translation>
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
      <source>Tools</source>
      <translation>Werkzeuge</translation>
    </message>
    <message>
      <source>Top tray</source>
      <translation>Oberes Fach</translation>
    </message>
    <message>
      <source>Transparency</source>
      <translation>Folie</translation>
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
      <source>Turn the sheets</source>
      <translation>Bögen drehen</translation>
    </message>
    <message>
      <source>Two sides</source>
      <translation>Zwei Seiten</translation>
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
      <source>Type pages, or select them among the sheets.</source>
      <translation>Seiten eingeben oder unter den Bögen markieren.</translation>
    </message>
    <message>
      <source>Type the PIN that you will give at the printer.</source>
      <translation>Geben Sie die PIN ein, die Sie am Drucker eingeben werden.</translation>
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
      <source>Use these settings</source>
      <translation>Diese Einstellungen verwenden</translation>
    </message>
    <message>
      <source>User</source>
      <translation>Benutzer</translation>
    </message>
    <message>
      <source>User and account</source>
      <translation>Benutzer und Konto</translation>
    </message>
    <message>
      <source>User, with or without an account</source>
      <translation>Benutzer, mit oder ohne Konto</translation>
    </message>
    <message>
      <source>Value</source>
      <translation>Wert</translation>
    </message>
    <message>
      <source>Watermark</source>
      <translation>Wasserzeichen</translation>
    </message>
    <message>
      <source>Weight</source>
      <translation>Gewicht</translation>
    </message>
    <message>
      <source>What I changed</source>
      <translation>Was ich geändert habe</translation>
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
      <source>When</source>
      <translation>Wann</translation>
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
      <source>White</source>
      <translation>Weiß</translation>
    </message>
    <message>
      <source>Who gets the printout</source>
      <translation>Wer den Ausdruck bekommt</translation>
    </message>
    <message>
      <source>Without a fax number, and so left out: %1</source>
      <translation>Ohne Faxnummer und deshalb ausgelassen: %1</translation>
    </message>
    <message>
      <source>Yellow</source>
      <translation>Gelb</translation>
    </message>
    <message>
      <source>Z fold</source>
      <translation>Z-Falz</translation>
    </message>
    <message>
      <source>such as 5-8, 12</source>
      <translation>etwa 5-8, 12</translation>
    </message>
  </context>
</TS>
