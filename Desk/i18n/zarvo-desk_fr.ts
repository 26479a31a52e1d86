<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
  <context>
    <name>desk</name>
    <message>
      <source> (stopped)</source>
      <translation> (arrêtée)</translation>
    </message>
    <message>
      <source> (takes no jobs)</source>
      <translation> (n’accepte pas de travaux)</translation>
    </message>
    <message>
      <source> g/m²</source>
      <translation> g/m²</translation>
    </message>
    <message>
      <source> points</source>
      <translation> points</translation>
    </message>
    <message>
      <source>%1 (group)</source>
      <translation>%1 (groupe)</translation>
    </message>
    <message>
      <source>%1 (not stored here)</source>
      <translation>%1 (pas enregistré ici)</translation>
    </message>
    <message>
      <source>%1 cannot be read.</source>
      <translation>%1 ne peut pas être lu.</translation>
    </message>
    <message>
      <source>%1 does not take "%2".</source>
      <translation>%1 n’accepte pas « %2 ».</translation>
    </message>
    <message>
      <source>%1 g/m²</source>
      <translation>%1 g/m²</translation>
    </message>
    <message numerus="yes">
      <source>%n copies</source>
      <translation>
        <numerusform>%n exemplaire</numerusform>
        <numerusform>%n exemplaires</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n page(s)</source>
      <translation>
        <numerusform>%n page</numerusform>
        <numerusform>%n pages</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n sheet side(s)</source>
      <translation>
        <numerusform>%n côté de feuille</numerusform>
        <numerusform>%n côtés de feuille</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n sheet(s)</source>
      <translation>
        <numerusform>%n feuille</numerusform>
        <numerusform>%n feuilles</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n sheet(s) after page %1</source>
      <translation>
        <numerusform>%n feuille après la page %1</numerusform>
        <numerusform>%n feuilles après la page %1</numerusform>
      </translation>
    </message>
    <message>
      <source>&amp;All sheets</source>
      <translation>&amp;Toutes les feuilles</translation>
    </message>
    <message>
      <source>&amp;Edit</source>
      <translation>&amp;Édition</translation>
    </message>
    <message>
      <source>&amp;File</source>
      <translation>&amp;Fichier</translation>
    </message>
    <message>
      <source>&amp;Larger</source>
      <translation>&amp;Agrandir</translation>
    </message>
    <message>
      <source>&amp;New settings</source>
      <translation>&amp;Nouveaux réglages</translation>
    </message>
    <message>
      <source>&amp;One side</source>
      <translation>&amp;Un côté</translation>
    </message>
    <message>
      <source>&amp;Open…</source>
      <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
      <source>&amp;Print</source>
      <translation>&amp;Imprimer</translation>
    </message>
    <message>
      <source>&amp;Quit</source>
      <translation>&amp;Quitter</translation>
    </message>
    <message>
      <source>&amp;Recent documents</source>
      <translation>Documents &amp;récents</translation>
    </message>
    <message>
      <source>&amp;Redo</source>
      <translation>&amp;Rétablir</translation>
    </message>
    <message>
      <source>&amp;Show staples, holes and folds</source>
      <translation>&amp;Montrer agrafes, trous et plis</translation>
    </message>
    <message>
      <source>&amp;Smaller</source>
      <translation>&amp;Réduire</translation>
    </message>
    <message>
      <source>&amp;Undo</source>
      <translation>&amp;Annuler</translation>
    </message>
    <message>
      <source>&amp;View</source>
      <translation>&amp;Affichage</translation>
    </message>
    <message>
      <source>/10 points</source>
      <translation>/10 point</translation>
    </message>
    <message>
      <source>A text of one's own</source>
      <translation>Un texte personnel</translation>
    </message>
    <message>
      <source>Account</source>
      <translation>Compte</translation>
    </message>
    <message>
      <source>Account for it</source>
      <translation>Imputer</translation>
    </message>
    <message>
      <source>Accounting</source>
      <translation>Comptabilité</translation>
    </message>
    <message>
      <source>Add from the address book</source>
      <translation>Ajouter depuis le carnet d’adresses</translation>
    </message>
    <message>
      <source>Add this number</source>
      <translation>Ajouter ce numéro</translation>
    </message>
    <message>
      <source>Address book</source>
      <translation>Carnet d’adresses</translation>
    </message>
    <message>
      <source>All files</source>
      <translation>Tous les fichiers</translation>
    </message>
    <message>
      <source>All settings</source>
      <translation>Tous les réglages</translation>
    </message>
    <message>
      <source>Angle</source>
      <translation>Angle</translation>
    </message>
    <message>
      <source>As a &amp;reader</source>
      <translation>Comme un &amp;lecteur</translation>
    </message>
    <message>
      <source>As the job</source>
      <translation>Comme le travail</translation>
    </message>
    <message>
      <source>As the printer does</source>
      <translation>Selon l’imprimante</translation>
    </message>
    <message>
      <source>As they are</source>
      <translation>Telles quelles</translation>
    </message>
    <message>
      <source>At the bottom</source>
      <translation>En bas</translation>
    </message>
    <message>
      <source>At the left</source>
      <translation>À gauche</translation>
    </message>
    <message>
      <source>At the printer choose this job and type the PIN.</source>
      <translation>À l’imprimante, choisissez ce travail et tapez le code PIN.</translation>
    </message>
    <message>
      <source>At the right</source>
      <translation>À droite</translation>
    </message>
    <message>
      <source>At the top</source>
      <translation>En haut</translation>
    </message>
    <message>
      <source>Automatic</source>
      <translation>Automatique</translation>
    </message>
    <message>
      <source>Back cover</source>
      <translation>Couverture arrière</translation>
    </message>
    <message>
      <source>Back printed</source>
      <translation>Verso imprimé</translation>
    </message>
    <message>
      <source>Banner page</source>
      <translation>Page de garde</translation>
    </message>
    <message>
      <source>Behind the page</source>
      <translation>Derrière la page</translation>
    </message>
    <message>
      <source>Black and gray</source>
      <translation>Noir et gris</translation>
    </message>
    <message>
      <source>Blue</source>
      <translation>Bleu</translation>
    </message>
    <message>
      <source>Booklet</source>
      <translation>Livret</translation>
    </message>
    <message>
      <source>Booklet, read from left to right</source>
      <translation>Livret, lu de gauche à droite</translation>
    </message>
    <message>
      <source>Booklet, read from right to left</source>
      <translation>Livret, lu de droite à gauche</translation>
    </message>
    <message>
      <source>Both sides printed</source>
      <translation>Deux côtés imprimés</translation>
    </message>
    <message>
      <source>Both sides, turned like a book</source>
      <translation>Recto verso, tourné comme un livre</translation>
    </message>
    <message>
      <source>Both sides, turned like a calendar</source>
      <translation>Recto verso, tourné comme un calendrier</translation>
    </message>
    <message>
      <source>Buff</source>
      <translation>Chamois</translation>
    </message>
    <message>
      <source>By user</source>
      <translation>Par utilisateur</translation>
    </message>
    <message>
      <source>By user and account</source>
      <translation>Par utilisateur et compte</translation>
    </message>
    <message>
      <source>By user and general account</source>
      <translation>Par utilisateur et compte général</translation>
    </message>
    <message>
      <source>By user and group account</source>
      <translation>Par utilisateur et compte de groupe</translation>
    </message>
    <message>
      <source>C fold</source>
      <translation>Pli roulé</translation>
    </message>
    <message>
      <source>Choose a watermark first.</source>
      <translation>Choisissez d’abord un filigrane.</translation>
    </message>
    <message>
      <source>Choose first what is other than for the job.</source>
      <translation>Choisissez d’abord ce qui diffère du travail.</translation>
    </message>
    <message>
      <source>Clear</source>
      <translation>Transparent</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>Fermer</translation>
    </message>
    <message>
      <source>Colour</source>
      <translation>Couleur</translation>
    </message>
    <message>
      <source>Colour and quality</source>
      <translation>Couleur et qualité</translation>
    </message>
    <message>
      <source>Company</source>
      <translation>Société</translation>
    </message>
    <message>
      <source>Contrast</source>
      <translation>Contraste</translation>
    </message>
    <message>
      <source>Converting</source>
      <translation>Conversion</translation>
    </message>
    <message>
      <source>Copies</source>
      <translation>Exemplaires</translation>
    </message>
    <message>
      <source>Copies and pages</source>
      <translation>Exemplaires et pages</translation>
    </message>
    <message>
      <source>Cover</source>
      <translation>Couverture</translation>
    </message>
    <message>
      <source>Cover sheet</source>
      <translation>Page de couverture</translation>
    </message>
    <message>
      <source>Covers and pages</source>
      <translation>Couvertures et pages</translation>
    </message>
    <message>
      <source>Creep for each sheet</source>
      <translation>Chasse par feuille</translation>
    </message>
    <message>
      <source>Custom %1</source>
      <translation>Personnalisé %1</translation>
    </message>
    <message>
      <source>Dialled before every number</source>
      <translation>Composé avant chaque numéro</translation>
    </message>
    <message>
      <source>Do this</source>
      <translation>Action</translation>
    </message>
    <message>
      <source>Documents and pictures</source>
      <translation>Documents et images</translation>
    </message>
    <message>
      <source>Drawing %v of %m</source>
      <translation>Dessin %v sur %m</translation>
    </message>
    <message>
      <source>Each set</source>
      <translation>Chaque jeu</translation>
    </message>
    <message>
      <source>Each subset</source>
      <translation>Chaque sous-jeu</translation>
    </message>
    <message>
      <source>Envelopes</source>
      <translation>Enveloppes</translation>
    </message>
    <message>
      <source>Fax</source>
      <translation>Fax</translation>
    </message>
    <message>
      <source>Fax recipients</source>
      <translation>Destinataires du fax</translation>
    </message>
    <message>
      <source>Find a setting</source>
      <translation>Chercher un réglage</translation>
    </message>
    <message>
      <source>Fine</source>
      <translation>Fine</translation>
    </message>
    <message>
      <source>Finish</source>
      <translation>Finition</translation>
    </message>
    <message>
      <source>Finishing</source>
      <translation>Finition</translation>
    </message>
    <message>
      <source>Fold</source>
      <translation>Pli</translation>
    </message>
    <message>
      <source>Fold and staple in the fold</source>
      <translation>Plier et agrafer au pli</translation>
    </message>
    <message>
      <source>Fold in the middle</source>
      <translation>Plier au milieu</translation>
    </message>
    <message>
      <source>Folder at the printer</source>
      <translation>Dossier de l’imprimante</translation>
    </message>
    <message>
      <source>Frame around each page</source>
      <translation>Cadre autour de chaque page</translation>
    </message>
    <message>
      <source>From</source>
      <translation>De</translation>
    </message>
    <message>
      <source>From left to right</source>
      <translation>De gauche à droite</translation>
    </message>
    <message>
      <source>From right to left</source>
      <translation>De droite à gauche</translation>
    </message>
    <message>
      <source>Front cover</source>
      <translation>Couverture avant</translation>
    </message>
    <message>
      <source>Front printed</source>
      <translation>Recto imprimé</translation>
    </message>
    <message>
      <source>General account</source>
      <translation>Compte général</translation>
    </message>
    <message>
      <source>Glue</source>
      <translation>Collage</translation>
    </message>
    <message>
      <source>Go to the printer %1, choose the job "%2" and type your PIN.</source>
      <translation>Allez à l’imprimante %1, choisissez le travail « %2 » et tapez votre code PIN.</translation>
    </message>
    <message>
      <source>Goldenrod</source>
      <translation>Jaune d’or</translation>
    </message>
    <message>
      <source>Gray</source>
      <translation>Gris</translation>
    </message>
    <message>
      <source>Green</source>
      <translation>Vert</translation>
    </message>
    <message>
      <source>Group account</source>
      <translation>Compte de groupe</translation>
    </message>
    <message>
      <source>Groups of settings</source>
      <translation>Groupes de réglages</translation>
    </message>
    <message>
      <source>Half Z fold</source>
      <translation>Demi-pli en Z</translation>
    </message>
    <message>
      <source>Half Z fold, other side</source>
      <translation>Demi-pli en Z, autre côté</translation>
    </message>
    <message>
      <source>Half fold</source>
      <translation>Pli en deux</translation>
    </message>
    <message>
      <source>Halftone screen</source>
      <translation>Trame</translation>
    </message>
    <message>
      <source>Hold it at the printer</source>
      <translation>Le retenir à l’imprimante</translation>
    </message>
    <message>
      <source>Holes</source>
      <translation>Trous</translation>
    </message>
    <message>
      <source>Holes, folds and binding</source>
      <translation>Trous, plis et reliure</translation>
    </message>
    <message>
      <source>House tickets</source>
      <translation>Réglages maison</translation>
    </message>
    <message>
      <source>How it is sent</source>
      <translation>Mode d’envoi</translation>
    </message>
    <message>
      <source>How many</source>
      <translation>Combien</translation>
    </message>
    <message>
      <source>Insert</source>
      <translation>Insertion</translation>
    </message>
    <message>
      <source>Insert them after these pages</source>
      <translation>Les insérer après ces pages</translation>
    </message>
    <message>
      <source>Ivory</source>
      <translation>Ivoire</translation>
    </message>
    <message>
      <source>Jobs of %1 do not pass through the filter of these settings; most of them will have no effect.</source>
      <translation>Les travaux de %1 ne passent pas par le filtre de ces réglages ; la plupart seront sans effet.</translation>
    </message>
    <message>
      <source>Keep</source>
      <translation>Garder</translation>
    </message>
    <message>
      <source>Keep in the address book</source>
      <translation>Garder dans le carnet d’adresses</translation>
    </message>
    <message>
      <source>Keep the settings under a name</source>
      <translation>Garder les réglages sous un nom</translation>
    </message>
    <message>
      <source>Kept as %1. "zarvo ticket list" shows all that are kept.</source>
      <translation>Gardé sous %1. « zarvo ticket list » les montre tous.</translation>
    </message>
    <message>
      <source>Kind</source>
      <translation>Genre</translation>
    </message>
    <message>
      <source>Labels</source>
      <translation>Étiquettes</translation>
    </message>
    <message>
      <source>Layout</source>
      <translation>Disposition</translation>
    </message>
    <message>
      <source>Lightness</source>
      <translation>Luminosité</translation>
    </message>
    <message>
      <source>Make or change a watermark</source>
      <translation>Créer ou changer un filigrane</translation>
    </message>
    <message>
      <source>Message to the operator</source>
      <translation>Message à l’opérateur</translation>
    </message>
    <message>
      <source>Mirrored</source>
      <translation>En miroir</translation>
    </message>
    <message>
      <source>Name</source>
      <translation>Nom</translation>
    </message>
    <message>
      <source>Name that the printer knows it by</source>
      <translation>Nom connu de l’imprimante</translation>
    </message>
    <message>
      <source>Name to save it under</source>
      <translation>Nom de l’enregistrement</translation>
    </message>
    <message>
      <source>Negative</source>
      <translation>Négatif</translation>
    </message>
    <message>
      <source>New</source>
      <translation>Nouveau</translation>
    </message>
    <message>
      <source>No booklet</source>
      <translation>Pas de livret</translation>
    </message>
    <message>
      <source>No cover</source>
      <translation>Pas de couverture</translation>
    </message>
    <message>
      <source>No fold</source>
      <translation>Pas de pli</translation>
    </message>
    <message>
      <source>No holes</source>
      <translation>Pas de trous</translation>
    </message>
    <message>
      <source>No printers</source>
      <translation>Aucune imprimante</translation>
    </message>
    <message>
      <source>No staples</source>
      <translation>Pas d’agrafes</translation>
    </message>
    <message>
      <source>No time is set</source>
      <translation>Aucune heure fixée</translation>
    </message>
    <message>
      <source>None</source>
      <translation>Aucun</translation>
    </message>
    <message>
      <source>Not glued</source>
      <translation>Pas collé</translation>
    </message>
    <message>
      <source>Not printed</source>
      <translation>Non imprimée</translation>
    </message>
    <message>
      <source>Notes</source>
      <translation>Notes</translation>
    </message>
    <message numerus="yes">
      <source>Nothing has come from the programs that convert the document for %n second(s); they have been ended.</source>
      <translation>
        <numerusform>Rien n’est venu des programmes de conversion pendant %n seconde ; ils ont été arrêtés.</numerusform>
        <numerusform>Rien n’est venu des programmes de conversion pendant %n secondes ; ils ont été arrêtés.</numerusform>
      </translation>
    </message>
    <message>
      <source>Nothing: the job is printed as the queue does it by itself.</source>
      <translation>Rien : le travail est imprimé comme la file le fait d’elle-même.</translation>
    </message>
    <message>
      <source>Number</source>
      <translation>Numéro</translation>
    </message>
    <message>
      <source>Off</source>
      <translation>Non</translation>
    </message>
    <message>
      <source>On</source>
      <translation>Oui</translation>
    </message>
    <message>
      <source>On A4</source>
      <translation>Sur A4</translation>
    </message>
    <message>
      <source>On Letter</source>
      <translation>Sur Letter</translation>
    </message>
    <message>
      <source>On the first page only</source>
      <translation>Sur la première page seulement</translation>
    </message>
    <message>
      <source>On the paper's own size</source>
      <translation>Au format du papier</translation>
    </message>
    <message>
      <source>One sheet, large</source>
      <translation>Une feuille, en grand</translation>
    </message>
    <message>
      <source>One side of each sheet</source>
      <translation>Un seul côté de chaque feuille</translation>
    </message>
    <message>
      <source>One staple, bottom left</source>
      <translation>Une agrafe, en bas à gauche</translation>
    </message>
    <message>
      <source>One staple, bottom right</source>
      <translation>Une agrafe, en bas à droite</translation>
    </message>
    <message>
      <source>One staple, top left</source>
      <translation>Une agrafe, en haut à gauche</translation>
    </message>
    <message>
      <source>One staple, top right</source>
      <translation>Une agrafe, en haut à droite</translation>
    </message>
    <message>
      <source>Open</source>
      <translation>Ouvrir</translation>
    </message>
    <message>
      <source>Open &amp;settings…</source>
      <translation>Ouvrir des ré&amp;glages…</translation>
    </message>
    <message>
      <source>Open settings</source>
      <translation>Ouvrir des réglages</translation>
    </message>
    <message>
      <source>Orange</source>
      <translation>Orange</translation>
    </message>
    <message>
      <source>Over the page</source>
      <translation>Par-dessus la page</translation>
    </message>
    <message>
      <source>Over the page, see-through</source>
      <translation>Par-dessus la page, translucide</translation>
    </message>
    <message>
      <source>PIN (4 to 10 digits)</source>
      <translation>Code PIN (4 à 10 chiffres)</translation>
    </message>
    <message>
      <source>Page %1</source>
      <translation>Page %1</translation>
    </message>
    <message>
      <source>Page %2 · sheet %1</source>
      <translation>Page %2 · feuille %1</translation>
    </message>
    <message>
      <source>Page %2 · sheet %1, back</source>
      <translation>Page %2 · feuille %1 verso</translation>
    </message>
    <message>
      <source>Page %2 · sheet %1, front</source>
      <translation>Page %2 · feuille %1 recto</translation>
    </message>
    <message>
      <source>Page exception</source>
      <translation>Exception de pages</translation>
    </message>
    <message>
      <source>Pages</source>
      <translation>Pages</translation>
    </message>
    <message>
      <source>Pages %1 to %2</source>
      <translation>Pages %1 à %2</translation>
    </message>
    <message>
      <source>Paper</source>
      <translation>Papier</translation>
    </message>
    <message>
      <source>Paper and trays</source>
      <translation>Papier et bacs</translation>
    </message>
    <message>
      <source>Paper colour</source>
      <translation>Couleur du papier</translation>
    </message>
    <message>
      <source>Paper kind</source>
      <translation>Genre de papier</translation>
    </message>
    <message>
      <source>Paper weight</source>
      <translation>Grammage</translation>
    </message>
    <message>
      <source>Picture for a watermark</source>
      <translation>Image pour un filigrane</translation>
    </message>
    <message>
      <source>Pink</source>
      <translation>Rose</translation>
    </message>
    <message>
      <source>Preprinted</source>
      <translation>Préimprimé</translation>
    </message>
    <message>
      <source>Print</source>
      <translation>Imprimer</translation>
    </message>
    <message>
      <source>Print a confirmation</source>
      <translation>Imprimer une confirmation</translation>
    </message>
    <message>
      <source>Print and save it</source>
      <translation>Imprimer et enregistrer</translation>
    </message>
    <message>
      <source>Print in</source>
      <translation>Imprimer en</translation>
    </message>
    <message>
      <source>Print it</source>
      <translation>Imprimer</translation>
    </message>
    <message>
      <source>Print it all the same</source>
      <translation>Imprimer quand même</translation>
    </message>
    <message>
      <source>Print it later</source>
      <translation>Imprimer plus tard</translation>
    </message>
    <message>
      <source>Print on</source>
      <translation>Imprimer sur</translation>
    </message>
    <message>
      <source>Print these pages so</source>
      <translation>Imprimer ainsi ces pages</translation>
    </message>
    <message>
      <source>Printed</source>
      <translation>Imprimé</translation>
    </message>
    <message>
      <source>Printer</source>
      <translation>Imprimante</translation>
    </message>
    <message>
      <source>Progress of drawing</source>
      <translation>Avancement du dessin</translation>
    </message>
    <message>
      <source>Progress of the job</source>
      <translation>Avancement du travail</translation>
    </message>
    <message>
      <source>Proof: one set first</source>
      <translation>Épreuve : un jeu d’abord</translation>
    </message>
    <message>
      <source>Quality</source>
      <translation>Qualité</translation>
    </message>
    <message>
      <source>Recipients</source>
      <translation>Destinataires</translation>
    </message>
    <message>
      <source>Recycled</source>
      <translation>Recyclé</translation>
    </message>
    <message>
      <source>Red</source>
      <translation>Rouge</translation>
    </message>
    <message>
      <source>Redo: %1</source>
      <translation>Rétablir : %1</translation>
    </message>
    <message>
      <source>Remove</source>
      <translation>Retirer</translation>
    </message>
    <message>
      <source>Remove it</source>
      <translation>Le retirer</translation>
    </message>
    <message>
      <source>Resolution</source>
      <translation>Résolution</translation>
    </message>
    <message>
      <source>Saturation</source>
      <translation>Saturation</translation>
    </message>
    <message>
      <source>Save it at the printer</source>
      <translation>L’enregistrer à l’imprimante</translation>
    </message>
    <message>
      <source>Save it only</source>
      <translation>Enregistrer seulement</translation>
    </message>
    <message>
      <source>Save s&amp;ettings</source>
      <translation>&amp;Enregistrer les réglages</translation>
    </message>
    <message>
      <source>Save settings</source>
      <translation>Enregistrer les réglages</translation>
    </message>
    <message>
      <source>Save settings &amp;as…</source>
      <translation>Enregistrer les réglages &amp;sous…</translation>
    </message>
    <message>
      <source>Save the changed settings to %1?</source>
      <translation>Enregistrer les réglages modifiés dans %1 ?</translation>
    </message>
    <message>
      <source>Save toner</source>
      <translation>Économiser l’encre</translation>
    </message>
    <message>
      <source>Secure: wait for a PIN</source>
      <translation>Confidentiel : attendre un code PIN</translation>
    </message>
    <message>
      <source>Select pages, or type some such as 5-8, 12.</source>
      <translation>Sélectionnez des pages, ou tapez par exemple 5-8, 12.</translation>
    </message>
    <message>
      <source>Send a cover</source>
      <translation>Envoyer une page de couverture</translation>
    </message>
    <message>
      <source>Send it as a fax</source>
      <translation>L’envoyer par fax</translation>
    </message>
    <message>
      <source>Sending "%1" to %2…</source>
      <translation>Envoi de « %1 » à %2…</translation>
    </message>
    <message>
      <source>Separators between transparencies</source>
      <translation>Intercalaires entre transparents</translation>
    </message>
    <message>
      <source>Sets and subsets</source>
      <translation>Jeux et sous-jeux</translation>
    </message>
    <message>
      <source>Setting</source>
      <translation>Réglage</translation>
    </message>
    <message>
      <source>Settings</source>
      <translation>Réglages</translation>
    </message>
    <message>
      <source>Sheet %1</source>
      <translation>Feuille %1</translation>
    </message>
    <message>
      <source>Sheets</source>
      <translation>Feuilles</translation>
    </message>
    <message>
      <source>Sheets as they are delivered</source>
      <translation>Feuilles telles qu’elles sont livrées</translation>
    </message>
    <message>
      <source>Sheets between the pages</source>
      <translation>Feuilles entre les pages</translation>
    </message>
    <message>
      <source>Shift stacks</source>
      <translation>Décaler les piles</translation>
    </message>
    <message>
      <source>Shift the pages</source>
      <translation>Décaler les pages</translation>
    </message>
    <message>
      <source>Size</source>
      <translation>Format</translation>
    </message>
    <message>
      <source>Size of the sheets</source>
      <translation>Taille des feuilles</translation>
    </message>
    <message>
      <source>Slip sheets between the sets</source>
      <translation>Intercalaires entre les jeux</translation>
    </message>
    <message>
      <source>Smooth edges</source>
      <translation>Lisser les bords</translation>
    </message>
    <message>
      <source>Space between the pages</source>
      <translation>Espace entre les pages</translation>
    </message>
    <message>
      <source>Speed</source>
      <translation>Vitesse</translation>
    </message>
    <message>
      <source>Stacker</source>
      <translation>Empileur</translation>
    </message>
    <message>
      <source>Stacker 1</source>
      <translation>Empileur 1</translation>
    </message>
    <message>
      <source>Stacker 2</source>
      <translation>Empileur 2</translation>
    </message>
    <message>
      <source>Standard</source>
      <translation>Standard</translation>
    </message>
    <message>
      <source>Staples</source>
      <translation>Agrafes</translation>
    </message>
    <message>
      <source>Store a picture…</source>
      <translation>Enregistrer une image…</translation>
    </message>
    <message>
      <source>Store this text</source>
      <translation>Enregistrer ce texte</translation>
    </message>
    <message>
      <source>Superfine</source>
      <translation>Superfine</translation>
    </message>
    <message>
      <source>Tabs</source>
      <translation>Onglets</translation>
    </message>
    <message>
      <source>Template of the printer</source>
      <translation>Modèle de l’imprimante</translation>
    </message>
    <message>
      <source>Text</source>
      <translation>Texte</translation>
    </message>
    <message>
      <source>Text on the banner page</source>
      <translation>Texte de la page de garde</translation>
    </message>
    <message>
      <source>The address book cannot be written: %1</source>
      <translation>Le carnet d’adresses ne peut pas être écrit : %1</translation>
    </message>
    <message>
      <source>The address book is empty</source>
      <translation>Le carnet d’adresses est vide</translation>
    </message>
    <message>
      <source>The finisher has no way to do this together with what is chosen already.</source>
      <translation>Le finisseur ne peut pas faire cela avec ce qui est déjà choisi.</translation>
    </message>
    <message>
      <source>The job</source>
      <translation>Le travail</translation>
    </message>
    <message>
      <source>The job is at the spooler as %1.</source>
      <translation>Le travail est dans la file sous %1.</translation>
    </message>
    <message>
      <source>The job is being printed.</source>
      <translation>Le travail est en cours d’impression.</translation>
    </message>
    <message>
      <source>The job is held by the spooler.</source>
      <translation>Le travail est retenu par la file.</translation>
    </message>
    <message>
      <source>The job waits to be printed.</source>
      <translation>Le travail attend d’être imprimé.</translation>
    </message>
    <message>
      <source>The job was canceled.</source>
      <translation>Le travail a été annulé.</translation>
    </message>
    <message>
      <source>The job was not printed.</source>
      <translation>Le travail n’a pas été imprimé.</translation>
    </message>
    <message>
      <source>The job was not sent.</source>
      <translation>Le travail n’a pas été envoyé.</translation>
    </message>
    <message>
      <source>The job was printed.</source>
      <translation>Le travail a été imprimé.</translation>
    </message>
    <message>
      <source>The printer %1 is gone.</source>
      <translation>L’imprimante %1 n’est plus là.</translation>
    </message>
    <message>
      <source>The printer dials %1</source>
      <translation>L’imprimante compose %1</translation>
    </message>
    <message>
      <source>The program that makes the sheets has ended; the document needs more time or memory than it may take.</source>
      <translation>Le programme qui dessine les feuilles s’est arrêté ; le document demande plus de temps ou de mémoire que permis.</translation>
    </message>
    <message>
      <source>The program zarvosheets is missing.</source>
      <translation>Le programme zarvosheets manque.</translation>
    </message>
    <message>
      <source>The sheets are finished as a booklet. Choose another finish here to have that instead.</source>
      <translation>Les feuilles sont finies en livret. Choisissez ici une autre finition pour l’avoir à la place.</translation>
    </message>
    <message>
      <source>The spooler cannot be asked.</source>
      <translation>Le système d’impression ne peut pas être interrogé.</translation>
    </message>
    <message>
      <source>The spooler does not tell what becomes of the job.</source>
      <translation>Le système d’impression ne dit pas ce que devient le travail.</translation>
    </message>
    <message>
      <source>Their names</source>
      <translation>Leurs noms</translation>
    </message>
    <message>
      <source>There is nothing in this to dial.</source>
      <translation>Il n’y a rien à composer.</translation>
    </message>
    <message>
      <source>These pages</source>
      <translation>Ces pages</translation>
    </message>
    <message>
      <source>To</source>
      <translation>À</translation>
    </message>
    <message>
      <source>To the right, back (1/10 mm)</source>
      <translation>Vers la droite, verso (1/10 mm)</translation>
    </message>
    <message>
      <source>To the right, front (1/10 mm)</source>
      <translation>Vers la droite, recto (1/10 mm)</translation>
    </message>
    <message>
      <source>Tools</source>
      <translation>Outils</translation>
    </message>
    <message>
      <source>Top tray</source>
      <translation>Bac supérieur</translation>
    </message>
    <message>
      <source>Transparency</source>
      <translation>Transparent</translation>
    </message>
    <message>
      <source>Tray</source>
      <translation>Bac</translation>
    </message>
    <message>
      <source>Tray for the output</source>
      <translation>Bac de sortie</translation>
    </message>
    <message>
      <source>Turn the sheets</source>
      <translation>Tourner les feuilles</translation>
    </message>
    <message>
      <source>Two sides</source>
      <translation>Recto verso</translation>
    </message>
    <message>
      <source>Two staples at the bottom</source>
      <translation>Deux agrafes en bas</translation>
    </message>
    <message>
      <source>Two staples at the left</source>
      <translation>Deux agrafes à gauche</translation>
    </message>
    <message>
      <source>Two staples at the right</source>
      <translation>Deux agrafes à droite</translation>
    </message>
    <message>
      <source>Two staples at the top</source>
      <translation>Deux agrafes en haut</translation>
    </message>
    <message>
      <source>Type pages, or select them among the sheets.</source>
      <translation>Tapez des pages, ou sélectionnez-les parmi les feuilles.</translation>
    </message>
    <message>
      <source>Type the PIN that you will give at the printer.</source>
      <translation>Tapez le code PIN que vous donnerez à l’imprimante.</translation>
    </message>
    <message>
      <source>Undo: %1</source>
      <translation>Annuler : %1</translation>
    </message>
    <message>
      <source>Upside down</source>
      <translation>À l’envers</translation>
    </message>
    <message>
      <source>Upwards, back (1/10 mm)</source>
      <translation>Vers le haut, verso (1/10 mm)</translation>
    </message>
    <message>
      <source>Upwards, front (1/10 mm)</source>
      <translation>Vers le haut, recto (1/10 mm)</translation>
    </message>
    <message>
      <source>Use these settings</source>
      <translation>Utiliser ces réglages</translation>
    </message>
    <message>
      <source>User</source>
      <translation>Utilisateur</translation>
    </message>
    <message>
      <source>User and account</source>
      <translation>Utilisateur et compte</translation>
    </message>
    <message>
      <source>User, with or without an account</source>
      <translation>Utilisateur, avec ou sans compte</translation>
    </message>
    <message>
      <source>Value</source>
      <translation>Valeur</translation>
    </message>
    <message>
      <source>Watermark</source>
      <translation>Filigrane</translation>
    </message>
    <message>
      <source>Weight</source>
      <translation>Grammage</translation>
    </message>
    <message>
      <source>What I changed</source>
      <translation>Ce que j’ai changé</translation>
    </message>
    <message>
      <source>What becomes of the job</source>
      <translation>Ce que devient le travail</translation>
    </message>
    <message>
      <source>What is other than the rest</source>
      <translation>Ce qui diffère du reste</translation>
    </message>
    <message>
      <source>When</source>
      <translation>Quand</translation>
    </message>
    <message>
      <source>Where</source>
      <translation>Où</translation>
    </message>
    <message>
      <source>Where the sheets come out</source>
      <translation>Où sortent les feuilles</translation>
    </message>
    <message>
      <source>White</source>
      <translation>Blanc</translation>
    </message>
    <message>
      <source>Who gets the printout</source>
      <translation>À qui va l’imprimé</translation>
    </message>
    <message>
      <source>Without a fax number, and so left out: %1</source>
      <translation>Sans numéro de fax, donc laissés de côté : %1</translation>
    </message>
    <message>
      <source>Yellow</source>
      <translation>Jaune</translation>
    </message>
    <message>
      <source>Z fold</source>
      <translation>Pli en Z</translation>
    </message>
    <message>
      <source>such as 5-8, 12</source>
      <translation>par exemple 5-8, 12</translation>
    </message>
  </context>
</TS>
