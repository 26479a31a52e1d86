<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
  <context>
    <name>desk</name>
    <message>
      <source> (gone)</source>
      <translation> (disparue)</translation>
    </message>
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
      <source>"None" and what begins with "Custom." mean something else to dialogs</source>
      <translation>« None » et ce qui commence par « Custom. » ont un autre sens pour les dialogues d’impression</translation>
    </message>
    <message>
      <source>"lpstat -e" lists the queues</source>
      <translation>« lpstat -e » donne les files d’attente</translation>
    </message>
    <message>
      <source>"lpstat -o" lists it, with 0 bytes if the document is missing</source>
      <translation>« lpstat -o » le montre, avec 0 octet si le document manque</translation>
    </message>
    <message>
      <source>"zarvo watermark list" shows them</source>
      <translation>« zarvo watermark list » les montre</translation>
    </message>
    <message>
      <source>%1 "%2" was left out: the store has none of that name</source>
      <translation>%1 « %2 » a été omis : aucun de ce nom n'est enregistré</translation>
    </message>
    <message>
      <source>%1 (by itself: %2)</source>
      <translation>%1 (de lui-même : %2)</translation>
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
      <source>%1 and nothing else; choose another one</source>
      <translation>%1 et rien d’autre ; choisissez-en un autre</translation>
    </message>
    <message>
      <source>%1 cannot be read, or is damaged. "zarvo doctor" tells more.</source>
      <translation>%1 ne peut pas être lu ou est endommagé. « zarvo doctor » en dit plus.</translation>
    </message>
    <message>
      <source>%1 cannot be read.</source>
      <translation>%1 ne peut pas être lu.</translation>
    </message>
    <message>
      <source>%1 cannot keep a PIN; choose JobType=Secure, or leave the PIN out</source>
      <translation>%1 ne peut pas garder de code ; choisissez une impression protégée (JobType=Secure), ou laissez le code</translation>
    </message>
    <message>
      <source>%1 copies</source>
      <translation>%1 exemplaires</translation>
    </message>
    <message>
      <source>%1 does not take "%2".</source>
      <translation>%1 n’accepte pas « %2 ».</translation>
    </message>
    <message>
      <source>%1 g/m²</source>
      <translation>%1 g/m²</translation>
    </message>
    <message>
      <source>%1 is no group of settings; send the job type as ..d_JobType..n=NUMBER</source>
      <translation>%1 n’est pas un groupe de réglages ; envoyez le type de tâche par ..d_JobType..n=NOMBRE</translation>
    </message>
    <message>
      <source>%1 is out of range</source>
      <translation>%1 est hors limites</translation>
    </message>
    <message>
      <source>%1 job envelopes: the printer takes it for as many jobs and starts anew at each</source>
      <translation>%1 enveloppes de tâche : l’imprimante y voit autant de tâches et recommence à chacune</translation>
    </message>
    <message>
      <source>%1 sheets after page %2</source>
      <translation>%1 feuilles après la page %2</translation>
    </message>
    <message>
      <source>%1, number %2: %3</source>
      <translation>%1, numéro %2 : %3</translation>
    </message>
    <message>
      <source>%1: house ticket "%2" does not let jobs change it, it was left as it is there</source>
      <translation>%1 : les réglages maison « %2 » ne le laissent pas changer, il est resté tel quel</translation>
    </message>
    <message>
      <source>%1: the job type is no number; send it as ..d_JobType..n=NUMBER</source>
      <translation>%1 : le type de tâche n’est pas un nombre ; envoyez-le par ..d_JobType..n=NOMBRE</translation>
    </message>
    <message numerus="yes">
      <source>%n card(s) of the address book cannot be read: %1</source>
      <translation>
        <numerusform>%n fiche du carnet d’adresses ne peut pas être lue : %1</numerusform>
        <numerusform>%n fiches du carnet d’adresses ne peuvent pas être lues : %1</numerusform>
      </translation>
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
      <source>%n page(s) cannot be drawn; there may be no room left for temporary files.</source>
      <translation>
        <numerusform>%n page ne peut pas être dessinée ; il n’y a peut-être plus de place pour les fichiers temporaires.</numerusform>
        <numerusform>%n pages ne peuvent pas être dessinées ; il n’y a peut-être plus de place pour les fichiers temporaires.</numerusform>
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
      <source>1 sheet after page %1</source>
      <translation>1 feuille après la page %1</translation>
    </message>
    <message>
      <source>4 to 10 digits</source>
      <translation>4 à 10 chiffres</translation>
    </message>
    <message>
      <source>A text of one's own</source>
      <translation>Un texte personnel</translation>
    </message>
    <message>
      <source>Abort</source>
      <translation>Abandonner</translation>
    </message>
    <message>
      <source>Account for it</source>
      <translation>Imputer</translation>
    </message>
    <message>
      <source>Account in the XML ticket</source>
      <translation>Compte dans le ticket XML</translation>
    </message>
    <message>
      <source>Accounting in the XML ticket, on only in mode "user-and-account"</source>
      <translation>Comptabilité dans le ticket XML, seulement en mode « utilisateur et compte »</translation>
    </message>
    <message>
      <source>Accounting mode</source>
      <translation>Mode de comptabilité</translation>
    </message>
    <message>
      <source>Accounting user in the XML ticket</source>
      <translation>Utilisateur comptable dans le ticket XML</translation>
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
      <source>Additional accounting data</source>
      <translation>Données comptables supplémentaires</translation>
    </message>
    <message>
      <source>Address book</source>
      <translation>Carnet d’adresses</translation>
    </message>
    <message>
      <source>Address-book record</source>
      <translation>Fiche du carnet d’adresses</translation>
    </message>
    <message>
      <source>After page</source>
      <translation>Après la page</translation>
    </message>
    <message>
      <source>All</source>
      <translation>Tout</translation>
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
      <source>Back printed</source>
      <translation>Verso imprimé</translation>
    </message>
    <message>
      <source>Background forms</source>
      <translation>Formulaires de fond</translation>
    </message>
    <message>
      <source>Balance from cyan to red</source>
      <translation>Équilibre du cyan au rouge</translation>
    </message>
    <message>
      <source>Balance from magenta to green</source>
      <translation>Équilibre du magenta au vert</translation>
    </message>
    <message>
      <source>Balance from yellow to blue</source>
      <translation>Équilibre du jaune au bleu</translation>
    </message>
    <message>
      <source>Banner page</source>
      <translation>Page de bannière</translation>
    </message>
    <message>
      <source>Billing code, up to 16 bytes</source>
      <translation>Code de facturation, 16 octets au plus</translation>
    </message>
    <message>
      <source>Binding choice</source>
      <translation>Reliure</translation>
    </message>
    <message>
      <source>Black</source>
      <translation>Noir</translation>
    </message>
    <message>
      <source>Black and gray</source>
      <translation>Noir et gris</translation>
    </message>
    <message>
      <source>Black overprint off</source>
      <translation>Surimpression du noir désactivée</translation>
    </message>
    <message>
      <source>Black overprint on</source>
      <translation>Surimpression du noir activée</translation>
    </message>
    <message>
      <source>Black printed over colours</source>
      <translation>Noir imprimé par-dessus les couleurs</translation>
    </message>
    <message>
      <source>Blank sheets</source>
      <translation>Feuilles vierges</translation>
    </message>
    <message>
      <source>Blue of a custom colour</source>
      <translation>Bleu d’une couleur personnalisée</translation>
    </message>
    <message>
      <source>Booklet on the job's stock size</source>
      <translation>Livret au format du papier de la tâche</translation>
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
      <source>Both</source>
      <translation>Les deux</translation>
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
      <source>Both sides, turned over the long edge</source>
      <translation>Recto verso, retourné sur le grand bord</translation>
    </message>
    <message>
      <source>Both sides, turned over the short edge</source>
      <translation>Recto verso, retourné sur le petit bord</translation>
    </message>
    <message>
      <source>Bound at the left</source>
      <translation>Relié à gauche</translation>
    </message>
    <message>
      <source>Bound at the right</source>
      <translation>Relié à droite</translation>
    </message>
    <message>
      <source>Brown</source>
      <translation>Marron</translation>
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
      <source>Cardinal</source>
      <translation>Cardinal</translation>
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
      <source>Choose one in the list first.</source>
      <translation>Choisissez d’abord dans la liste.</translation>
    </message>
    <message>
      <source>Choose one of the pictures first.</source>
      <translation>Choisissez d’abord une des images.</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>Fermer</translation>
    </message>
    <message>
      <source>Coarse</source>
      <translation>Grossier</translation>
    </message>
    <message>
      <source>Coating, back</source>
      <translation>Couchage, verso</translation>
    </message>
    <message>
      <source>Coating, front</source>
      <translation>Couchage, recto</translation>
    </message>
    <message>
      <source>Collated</source>
      <translation>Assemblées</translation>
    </message>
    <message>
      <source>Color to highlight</source>
      <translation>Couleur vers accentuation</translation>
    </message>
    <message>
      <source>Colorant</source>
      <translation>Colorant</translation>
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
      <source>Colour of the separators</source>
      <translation>Couleur des intercalaires</translation>
    </message>
    <message>
      <source>Colour of transparency separators</source>
      <translation>Couleur des intercalaires de transparents</translation>
    </message>
    <message>
      <source>Colour or grayscale</source>
      <translation>Couleur ou niveaux de gris</translation>
    </message>
    <message>
      <source>Colour settings</source>
      <translation>Réglages de couleur</translation>
    </message>
    <message>
      <source>Colour that is mapped to it</source>
      <translation>Couleur qui y est associée</translation>
    </message>
    <message>
      <source>Company</source>
      <translation>Société</translation>
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
      <source>Correct them, or give --force to print it all the same</source>
      <translation>Corrigez-les, ou imprimez quand même</translation>
    </message>
    <message>
      <source>Corvanta180 adjustable</source>
      <translation>Corvanta180, réglable</translation>
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
      <source>Covers</source>
      <translation>Couvertures</translation>
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
      <source>Creep for each sheet, 1/10 point</source>
      <translation>Chasse par feuille, 1/10 de point</translation>
    </message>
    <message>
      <source>Custom %1</source>
      <translation>Personnalisé %1</translation>
    </message>
    <message>
      <source>Custom colour as RGB, else as HSV</source>
      <translation>Couleur personnalisée en RVB, sinon en TSV</translation>
    </message>
    <message>
      <source>Cyan</source>
      <translation>Cyan</translation>
    </message>
    <message>
      <source>Cyan to red</source>
      <translation>Cyan vers rouge</translation>
    </message>
    <message>
      <source>Darkness</source>
      <translation>Densité</translation>
    </message>
    <message>
      <source>Darkness of another printer</source>
      <translation>Densité d’une autre imprimante</translation>
    </message>
    <message>
      <source>Delivery</source>
      <translation>Sortie</translation>
    </message>
    <message>
      <source>Description</source>
      <translation>Description</translation>
    </message>
    <message>
      <source>Destination profile, back</source>
      <translation>Profil de destination, verso</translation>
    </message>
    <message>
      <source>Destination profile, front</source>
      <translation>Profil de destination, recto</translation>
    </message>
    <message>
      <source>Destination profile: a code or a name</source>
      <translation>Profil de destination : un code ou un nom</translation>
    </message>
    <message>
      <source>Dialled before every number</source>
      <translation>Composé avant chaque numéro</translation>
    </message>
    <message>
      <source>Dialled before every number, up to 4 bytes</source>
      <translation>Composé avant chaque numéro, 4 octets au plus</translation>
    </message>
    <message>
      <source>Do not insert</source>
      <translation>Ne pas insérer</translation>
    </message>
    <message>
      <source>Do this</source>
      <translation>Action</translation>
    </message>
    <message>
      <source>Document format</source>
      <translation>Format du document</translation>
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
      <source>Drop a document here, or choose Open.</source>
      <translation>Déposez un document ici, ou choisissez Ouvrir.</translation>
    </message>
    <message>
      <source>E-mail address</source>
      <translation>Adresse électronique</translation>
    </message>
    <message>
      <source>Each job</source>
      <translation>Chaque tâche</translation>
    </message>
    <message>
      <source>Envelope c5</source>
      <translation>Enveloppe C5</translation>
    </message>
    <message>
      <source>Envelope dl</source>
      <translation>Enveloppe DL</translation>
    </message>
    <message>
      <source>Envelopes</source>
      <translation>Enveloppes</translation>
    </message>
    <message>
      <source>Every section</source>
      <translation>Toutes les sections</translation>
    </message>
    <message>
      <source>Family name</source>
      <translation>Nom</translation>
    </message>
    <message>
      <source>Fast reprint</source>
      <translation>Réimpression rapide</translation>
    </message>
    <message>
      <source>Fast reprint and dri</source>
      <translation>Réimpression rapide et DRI</translation>
    </message>
    <message>
      <source>Fax confirmation sheet</source>
      <translation>Confirmation de télécopie</translation>
    </message>
    <message>
      <source>Fax cover sheet made by the printer</source>
      <translation>Page de garde faite par l’imprimante</translation>
    </message>
    <message>
      <source>Fax number as typed</source>
      <translation>Numéro de télécopie tel que saisi</translation>
    </message>
    <message>
      <source>Fax recipients</source>
      <translation>Destinataires du fax</translation>
    </message>
    <message>
      <source>Fax to</source>
      <translation>Télécopie à</translation>
    </message>
    <message>
      <source>Fax to the mailbox</source>
      <translation>Télécopie à la boîte</translation>
    </message>
    <message>
      <source>Faxed after</source>
      <translation>Télécopié après</translation>
    </message>
    <message>
      <source>Find a setting</source>
      <translation>Chercher un réglage</translation>
    </message>
    <message>
      <source>Find one by its title</source>
      <translation>Chercher par titre</translation>
    </message>
    <message>
      <source>Finish</source>
      <translation>Finition</translation>
    </message>
    <message>
      <source>Finish of a booklet</source>
      <translation>Finition d’un livret</translation>
    </message>
    <message>
      <source>Finishing preset; it says which of the other finishing values count</source>
      <translation>Préréglage de finition ; il dit lesquelles des autres valeurs comptent</translation>
    </message>
    <message>
      <source>Finishing template of the printer</source>
      <translation>Modèle de finition de l’imprimante</translation>
    </message>
    <message>
      <source>First page</source>
      <translation>Première page</translation>
    </message>
    <message>
      <source>Fold 1003 of the printer</source>
      <translation>Pli 1003 de l’imprimante</translation>
    </message>
    <message>
      <source>Fold 1004 of the printer</source>
      <translation>Pli 1004 de l’imprimante</translation>
    </message>
    <message>
      <source>Fold 1005 of the printer</source>
      <translation>Pli 1005 de l’imprimante</translation>
    </message>
    <message>
      <source>Fold 1008 of the printer</source>
      <translation>Pli 1008 de l’imprimante</translation>
    </message>
    <message>
      <source>Fold 1011 of the printer</source>
      <translation>Pli 1011 de l’imprimante</translation>
    </message>
    <message>
      <source>Fold 1012 of the printer</source>
      <translation>Pli 1012 de l’imprimante</translation>
    </message>
    <message>
      <source>Fold and staple in the fold</source>
      <translation>Plier et agrafer au pli</translation>
    </message>
    <message>
      <source>Fold choice</source>
      <translation>Pliage</translation>
    </message>
    <message>
      <source>Fold in the middle</source>
      <translation>Plier au milieu</translation>
    </message>
    <message>
      <source>Folded in the middle</source>
      <translation>Plié au milieu</translation>
    </message>
    <message>
      <source>Folded in the middle and stapled there</source>
      <translation>Plié et agrafé au milieu</translation>
    </message>
    <message>
      <source>Folded to a booklet</source>
      <translation>Plié en livret</translation>
    </message>
    <message>
      <source>Folder</source>
      <translation>Dossier</translation>
    </message>
    <message>
      <source>Folder at the printer</source>
      <translation>Dossier de l’imprimante</translation>
    </message>
    <message>
      <source>Folder of the printer for a saved job</source>
      <translation>Dossier de l’imprimante pour une tâche enregistrée</translation>
    </message>
    <message>
      <source>Forced 4800</source>
      <translation>4800 forcé</translation>
    </message>
    <message>
      <source>Format</source>
      <translation>Format</translation>
    </message>
    <message>
      <source>Format of a saved job</source>
      <translation>Format d’une tâche enregistrée</translation>
    </message>
    <message>
      <source>Four holes</source>
      <translation>Quatre trous</translation>
    </message>
    <message>
      <source>Frame around each booklet page</source>
      <translation>Cadre autour de chaque page du livret</translation>
    </message>
    <message>
      <source>Frame around each page</source>
      <translation>Cadre autour de chaque page</translation>
    </message>
    <message>
      <source>Free description</source>
      <translation>Description libre</translation>
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
      <source>Front</source>
      <translation>Recto</translation>
    </message>
    <message>
      <source>Front printed</source>
      <translation>Recto imprimé</translation>
    </message>
    <message>
      <source>Further notes</source>
      <translation>Autres remarques</translation>
    </message>
    <message>
      <source>General account</source>
      <translation>Compte général</translation>
    </message>
    <message>
      <source>Ghostscript cannot draw the job: %1</source>
      <translation>Ghostscript ne peut pas dessiner le travail : %1</translation>
    </message>
    <message>
      <source>Given name</source>
      <translation>Prénom</translation>
    </message>
    <message>
      <source>Glossy</source>
      <translation>Brillant</translation>
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
      <source>Grain</source>
      <translation>Sens des fibres</translation>
    </message>
    <message>
      <source>Grain direction</source>
      <translation>Sens des fibres du papier</translation>
    </message>
    <message>
      <source>Green of a custom colour</source>
      <translation>Vert d’une couleur personnalisée</translation>
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
      <source>HSV</source>
      <translation>TSV</translation>
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
      <source>Halftone of graphics</source>
      <translation>Trame des graphiques</translation>
    </message>
    <message>
      <source>Halftone of images</source>
      <translation>Trame des images</translation>
    </message>
    <message>
      <source>Halftone of text</source>
      <translation>Trame du texte</translation>
    </message>
    <message>
      <source>Halftone screen</source>
      <translation>Trame</translation>
    </message>
    <message>
      <source>Halftone; not sent to the printer</source>
      <translation>Trame ; non envoyée à l’imprimante</translation>
    </message>
    <message>
      <source>Heading of the notes</source>
      <translation>Titre des remarques</translation>
    </message>
    <message>
      <source>Heading of the recipients</source>
      <translation>Titre des destinataires</translation>
    </message>
    <message>
      <source>Heading of the sender</source>
      <translation>Titre de l’expéditeur</translation>
    </message>
    <message>
      <source>Held until released</source>
      <translation>Retenu jusqu’à libération</translation>
    </message>
    <message>
      <source>High gloss</source>
      <translation>Très brillant</translation>
    </message>
    <message>
      <source>Highlight colorant</source>
      <translation>Colorant d’accentuation</translation>
    </message>
    <message>
      <source>Highlight colour</source>
      <translation>Couleur d’accentuation</translation>
    </message>
    <message>
      <source>Highlight mapping</source>
      <translation>Association de l’accentuation</translation>
    </message>
    <message>
      <source>Highlighted colour</source>
      <translation>Couleur accentuée</translation>
    </message>
    <message>
      <source>Highlighted custom colour</source>
      <translation>Couleur personnalisée accentuée</translation>
    </message>
    <message>
      <source>Hold</source>
      <translation>Retenir</translation>
    </message>
    <message>
      <source>Hold it at the printer</source>
      <translation>Le retenir à l’imprimante</translation>
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
      <source>How far the pages lie turned, for the watermark</source>
      <translation>Rotation des pages, pour le filigrane</translation>
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
      <source>Hue</source>
      <translation>Teinte</translation>
    </message>
    <message>
      <source>Hue of a custom colour</source>
      <translation>Teinte d’une couleur personnalisée</translation>
    </message>
    <message>
      <source>Image shift</source>
      <translation>Décalage de l’image</translation>
    </message>
    <message>
      <source>In document</source>
      <translation>Dans le document</translation>
    </message>
    <message>
      <source>Indefinite</source>
      <translation>Indéfini</translation>
    </message>
    <message>
      <source>Insert</source>
      <translation>Insérer</translation>
    </message>
    <message>
      <source>Insert them after these pages</source>
      <translation>Les insérer après ces pages</translation>
    </message>
    <message>
      <source>Inserts</source>
      <translation>Encarts</translation>
    </message>
    <message>
      <source>It was canceled: print again</source>
      <translation>Il a été annulé : imprimez de nouveau</translation>
    </message>
    <message>
      <source>Job name</source>
      <translation>Nom de la tâche</translation>
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
      <source>Keep on the printer, do not print</source>
      <translation>Garder sur l’imprimante, ne pas imprimer</translation>
    </message>
    <message>
      <source>Keep the changes of this watermark</source>
      <translation>Garder les changements de ce filigrane</translation>
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
      <source>Kept on the printer, not printed</source>
      <translation>Gardé sur l’imprimante, non imprimé</translation>
    </message>
    <message>
      <source>Kind</source>
      <translation>Genre</translation>
    </message>
    <message>
      <source>Kind of account in mode "user"</source>
      <translation>Type de compte en mode « utilisateur »</translation>
    </message>
    <message>
      <source>Kind of coating</source>
      <translation>Type de couchage</translation>
    </message>
    <message>
      <source>Kind of stock</source>
      <translation>Type de papier</translation>
    </message>
    <message>
      <source>Label of the fax number</source>
      <translation>Libellé du numéro de télécopie</translation>
    </message>
    <message>
      <source>Label of the sender's fax number</source>
      <translation>Libellé du numéro de télécopie de l’expéditeur</translation>
    </message>
    <message>
      <source>Label of the sender's phone number</source>
      <translation>Libellé du téléphone de l’expéditeur</translation>
    </message>
    <message>
      <source>Landscape</source>
      <translation>Paysage</translation>
    </message>
    <message>
      <source>Last page</source>
      <translation>Dernière page</translation>
    </message>
    <message>
      <source>Legal</source>
      <translation>Legal</translation>
    </message>
    <message>
      <source>Length of a size without a code, 1/100 mm</source>
      <translation>Longueur d’un format sans code, 1/100 mm</translation>
    </message>
    <message>
      <source>Letter</source>
      <translation>Letter</translation>
    </message>
    <message>
      <source>Letter head</source>
      <translation>En-tête</translation>
    </message>
    <message>
      <source>Look for OPI images first</source>
      <translation>Chercher d’abord les images OPI</translation>
    </message>
    <message>
      <source>Magenta</source>
      <translation>Magenta</translation>
    </message>
    <message>
      <source>Magenta to green</source>
      <translation>Magenta vers vert</translation>
    </message>
    <message>
      <source>Mailbox on the printer</source>
      <translation>Boîte sur l’imprimante</translation>
    </message>
    <message>
      <source>Make or change a watermark</source>
      <translation>Créer ou changer un filigrane</translation>
    </message>
    <message>
      <source>Mapping method</source>
      <translation>Méthode d’association</translation>
    </message>
    <message>
      <source>Matte</source>
      <translation>Mat</translation>
    </message>
    <message>
      <source>Medium</source>
      <translation>Moyen</translation>
    </message>
    <message>
      <source>Message on the banner page</source>
      <translation>Message sur la page de garde</translation>
    </message>
    <message>
      <source>Message to the operator</source>
      <translation>Message à l’opérateur</translation>
    </message>
    <message>
      <source>Mirror the page</source>
      <translation>Page en miroir</translation>
    </message>
    <message>
      <source>Mirrored</source>
      <translation>En miroir</translation>
    </message>
    <message>
      <source>Multi page tiff</source>
      <translation>TIFF, un fichier</translation>
    </message>
    <message>
      <source>Name of a saved job</source>
      <translation>Nom d’une tâche enregistrée</translation>
    </message>
    <message>
      <source>Name of the job</source>
      <translation>Nom de la tâche</translation>
    </message>
    <message>
      <source>Name that the printer knows it by</source>
      <translation>Nom connu de l’imprimante</translation>
    </message>
    <message>
      <source>Name the job after the document</source>
      <translation>Nommer la tâche comme le document</translation>
    </message>
    <message>
      <source>Name to save it under</source>
      <translation>Nom de l’enregistrement</translation>
    </message>
    <message>
      <source>Name under which the job is stored as a form</source>
      <translation>Nom sous lequel la tâche est gardée comme formulaire</translation>
    </message>
    <message>
      <source>Name under which the printer knows the stock</source>
      <translation>Nom sous lequel l’imprimante connaît le papier</translation>
    </message>
    <message>
      <source>Negative</source>
      <translation>Négatif</translation>
    </message>
    <message>
      <source>Negative and mirror</source>
      <translation>Négatif et miroir</translation>
    </message>
    <message>
      <source>New</source>
      <translation>Nouveau</translation>
    </message>
    <message>
      <source>No</source>
      <translation>Non</translation>
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
      <source>No pre scan</source>
      <translation>Sans préanalyse</translation>
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
      <source>None is kept yet. Choose settings in the other groups, type a name below and keep them.</source>
      <translation>Rien n’est encore gardé. Choisissez des réglages dans les autres groupes, tapez un nom ci-dessous et gardez-les.</translation>
    </message>
    <message>
      <source>Normal</source>
      <translation>Normal</translation>
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
    <message>
      <source>Notes on the cover</source>
      <translation>Remarques sur la page de garde</translation>
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
      <source>Number of holes</source>
      <translation>Nombre de trous</translation>
    </message>
    <message>
      <source>Number of sheets</source>
      <translation>Nombre de feuilles</translation>
    </message>
    <message>
      <source>OPI images</source>
      <translation>Images OPI</translation>
    </message>
    <message>
      <source>Object based</source>
      <translation>Selon les objets</translation>
    </message>
    <message>
      <source>Offset</source>
      <translation>Décalage</translation>
    </message>
    <message>
      <source>Offset in the tray</source>
      <translation>Décalage dans le bac</translation>
    </message>
    <message>
      <source>Offset of sets</source>
      <translation>Décalage des jeux</translation>
    </message>
    <message>
      <source>Offset of subsets</source>
      <translation>Décalage des sous-jeux</translation>
    </message>
    <message>
      <source>Offset this job in the tray</source>
      <translation>Décaler cette tâche dans le bac</translation>
    </message>
    <message>
      <source>Offset to the right</source>
      <translation>Décalage vers la droite</translation>
    </message>
    <message>
      <source>Offset upwards</source>
      <translation>Décalage vers le haut</translation>
    </message>
    <message>
      <source>Offsets are in 1/10 inch, else in mm</source>
      <translation>Décalages en 1/10 de pouce, sinon en mm</translation>
    </message>
    <message>
      <source>Offsets are in 1/100 mm already</source>
      <translation>Décalages déjà en 1/100 mm</translation>
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
      <source>One staple</source>
      <translation>Une agrafe</translation>
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
      <source>Order and side of delivery</source>
      <translation>Ordre et face de sortie</translation>
    </message>
    <message>
      <source>Orientation</source>
      <translation>Orientation</translation>
    </message>
    <message>
      <source>Over the page</source>
      <translation>Par-dessus la page</translation>
    </message>
    <message>
      <source>PIN, up to 19 characters</source>
      <translation>Code, 19 caractères au plus</translation>
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
      <source>Page after which they come</source>
      <translation>Page après laquelle elles viennent</translation>
    </message>
    <message>
      <source>Page exception</source>
      <translation>Exception de pages</translation>
    </message>
    <message>
      <source>Page exceptions</source>
      <translation>Exceptions de pages</translation>
    </message>
    <message>
      <source>Pages %1 to %2</source>
      <translation>Pages %1 à %2</translation>
    </message>
    <message>
      <source>Pages after which the form starts again</source>
      <translation>Pages après lesquelles le formulaire recommence</translation>
    </message>
    <message>
      <source>Pages in a cycle</source>
      <translation>Pages par cycle</translation>
    </message>
    <message>
      <source>Pages in a subset</source>
      <translation>Pages par sous-jeu</translation>
    </message>
    <message>
      <source>Pages turned</source>
      <translation>Pages tournées</translation>
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
      <source>Paper from</source>
      <translation>Papier de</translation>
    </message>
    <message>
      <source>Paper kind</source>
      <translation>Genre de papier</translation>
    </message>
    <message>
      <source>Paper of both covers</source>
      <translation>Papier des deux couvertures</translation>
    </message>
    <message>
      <source>Paper of the cover</source>
      <translation>Papier de la page de garde</translation>
    </message>
    <message>
      <source>Paper of the front cover</source>
      <translation>Papier de la couverture avant</translation>
    </message>
    <message>
      <source>Paper weight</source>
      <translation>Grammage</translation>
    </message>
    <message>
      <source>Phone number</source>
      <translation>Numéro de téléphone</translation>
    </message>
    <message>
      <source>Pictorial</source>
      <translation>Pictural</translation>
    </message>
    <message>
      <source>Picture for a watermark</source>
      <translation>Image pour un filigrane</translation>
    </message>
    <message>
      <source>Portrait</source>
      <translation>Portrait</translation>
    </message>
    <message>
      <source>PostScript job %1 of %2</source>
      <translation>Tâche PostScript %1 sur %2</translation>
    </message>
    <message>
      <source>Pre printed</source>
      <translation>Préimprimé</translation>
    </message>
    <message>
      <source>Pre scan</source>
      <translation>Préanalyse</translation>
    </message>
    <message>
      <source>Pre scan and gather</source>
      <translation>Préanalyse et collecte</translation>
    </message>
    <message>
      <source>Presentation</source>
      <translation>Présentation</translation>
    </message>
    <message>
      <source>Print a confirmation</source>
      <translation>Imprimer une confirmation</translation>
    </message>
    <message>
      <source>Print a range of pages</source>
      <translation>Imprimer une plage de pages</translation>
    </message>
    <message>
      <source>Print and keep on the printer</source>
      <translation>Imprimer et garder sur l’imprimante</translation>
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
      <source>Printed after</source>
      <translation>Imprimé après</translation>
    </message>
    <message>
      <source>Printed already</source>
      <translation>Déjà imprimé</translation>
    </message>
    <message>
      <source>Printed for</source>
      <translation>Imprimé pour</translation>
    </message>
    <message>
      <source>Printed sheets</source>
      <translation>Feuilles imprimées</translation>
    </message>
    <message>
      <source>Printed sides</source>
      <translation>Faces imprimées</translation>
    </message>
    <message>
      <source>Printed, and kept on the printer</source>
      <translation>Imprimé, et gardé sur l’imprimante</translation>
    </message>
    <message>
      <source>Printer</source>
      <translation>Imprimante</translation>
    </message>
    <message>
      <source>Profile of CMYK graphics</source>
      <translation>Profil des graphiques CMJN</translation>
    </message>
    <message>
      <source>Profile of CMYK images</source>
      <translation>Profil des images CMJN</translation>
    </message>
    <message>
      <source>Profile of CMYK text</source>
      <translation>Profil du texte CMJN</translation>
    </message>
    <message>
      <source>Profile of RGB graphics</source>
      <translation>Profil des graphiques RVB</translation>
    </message>
    <message>
      <source>Profile of RGB images</source>
      <translation>Profil des images RVB</translation>
    </message>
    <message>
      <source>Profile of RGB text</source>
      <translation>Profil du texte RVB</translation>
    </message>
    <message>
      <source>Profile of gray graphics</source>
      <translation>Profil des graphiques gris</translation>
    </message>
    <message>
      <source>Profile of gray images</source>
      <translation>Profil des images grises</translation>
    </message>
    <message>
      <source>Profile of gray text</source>
      <translation>Profil du texte gris</translation>
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
      <source>Proof: one set, the others when it is released</source>
      <translation>Épreuve : un jeu, les autres après accord</translation>
    </message>
    <message>
      <source>Punch choice</source>
      <translation>Perforation</translation>
    </message>
    <message>
      <source>Punched at the bottom</source>
      <translation>Perforé en bas</translation>
    </message>
    <message>
      <source>Punched at the left</source>
      <translation>Perforé à gauche</translation>
    </message>
    <message>
      <source>Punched at the right</source>
      <translation>Perforé à droite</translation>
    </message>
    <message>
      <source>Punched at the top</source>
      <translation>Perforé en haut</translation>
    </message>
    <message>
      <source>Put in OPI images</source>
      <translation>Insérer les images OPI</translation>
    </message>
    <message>
      <source>Quality</source>
      <translation>Qualité</translation>
    </message>
    <message>
      <source>Reading order of a booklet</source>
      <translation>Sens de lecture d’un livret</translation>
    </message>
    <message>
      <source>Recipient text of the cover</source>
      <translation>Texte des destinataires de la page de garde</translation>
    </message>
    <message>
      <source>Recipients</source>
      <translation>Destinataires</translation>
    </message>
    <message>
      <source>Recipients on the cover</source>
      <translation>Destinataires sur la page de garde</translation>
    </message>
    <message>
      <source>Recycled stock</source>
      <translation>Papier recyclé</translation>
    </message>
    <message>
      <source>Red of a custom colour</source>
      <translation>Rouge d’une couleur personnalisée</translation>
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
      <source>Rendering intent of graphics</source>
      <translation>Rendu des graphiques</translation>
    </message>
    <message>
      <source>Rendering intent of images</source>
      <translation>Rendu des images</translation>
    </message>
    <message>
      <source>Rendering intent of text</source>
      <translation>Rendu du texte</translation>
    </message>
    <message>
      <source>Resolution of a job that brings its own header</source>
      <translation>Résolution d’une tâche qui a son propre en-tête</translation>
    </message>
    <message>
      <source>Reverse landscape</source>
      <translation>Paysage inversé</translation>
    </message>
    <message>
      <source>Reverse order face down</source>
      <translation>Dernière page d’abord, face dessous</translation>
    </message>
    <message>
      <source>Reverse order face up</source>
      <translation>Dernière page d’abord, face dessus</translation>
    </message>
    <message>
      <source>Reverse portrait</source>
      <translation>Portrait inversé</translation>
    </message>
    <message>
      <source>Royal</source>
      <translation>Bleu roi</translation>
    </message>
    <message>
      <source>Ruby</source>
      <translation>Rubis</translation>
    </message>
    <message>
      <source>SRGB</source>
      <translation>sRVB</translation>
    </message>
    <message>
      <source>Same order face down</source>
      <translation>Première page d’abord, face dessous</translation>
    </message>
    <message>
      <source>Same order face up</source>
      <translation>Première page d’abord, face dessus</translation>
    </message>
    <message>
      <source>Satin</source>
      <translation>Satiné</translation>
    </message>
    <message>
      <source>Saturation of a custom colour</source>
      <translation>Saturation d’une couleur personnalisée</translation>
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
      <source>Save it under the document's name</source>
      <translation>L’enregistrer sous le nom du document</translation>
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
      <source>Saved in the folder</source>
      <translation>Enregistré dans le dossier</translation>
    </message>
    <message>
      <source>Saved job</source>
      <translation>Tâche enregistrée</translation>
    </message>
    <message>
      <source>Saved under the name</source>
      <translation>Enregistré sous le nom</translation>
    </message>
    <message>
      <source>Secure print: held until the PIN is typed</source>
      <translation>Impression protégée : retenue jusqu’à la saisie du code</translation>
    </message>
    <message>
      <source>Secure: wait for a PIN</source>
      <translation>Confidentiel : attendre un code PIN</translation>
    </message>
    <message>
      <source>SecurePrintPassword: the PIN is no text; send it as ..d_SecurePrintPassword=TEXT</source>
      <translation>SecurePrintPassword : le code n’est pas un texte ; envoyez-le par ..d_SecurePrintPassword=TEXTE</translation>
    </message>
    <message>
      <source>Select pages, or type some such as 5-8, 12.</source>
      <translation>Sélectionnez des pages, ou tapez par exemple 5-8, 12.</translation>
    </message>
    <message>
      <source>Semi gloss</source>
      <translation>Semi-brillant</translation>
    </message>
    <message>
      <source>Send a cover</source>
      <translation>Envoyer une page de couverture</translation>
    </message>
    <message>
      <source>Send a cover sheet</source>
      <translation>Envoyer une page de garde</translation>
    </message>
    <message>
      <source>Send it as a fax</source>
      <translation>L’envoyer par fax</translation>
    </message>
    <message>
      <source>Sender on the cover</source>
      <translation>Expéditeur sur la page de garde</translation>
    </message>
    <message>
      <source>Sender's company</source>
      <translation>Société de l’expéditeur</translation>
    </message>
    <message>
      <source>Sender's e-mail address</source>
      <translation>Adresse électronique de l’expéditeur</translation>
    </message>
    <message>
      <source>Sender's fax number</source>
      <translation>Télécopie de l’expéditeur</translation>
    </message>
    <message>
      <source>Sender's name</source>
      <translation>Nom de l’expéditeur</translation>
    </message>
    <message>
      <source>Sender's phone number</source>
      <translation>Téléphone de l’expéditeur</translation>
    </message>
    <message>
      <source>Sending "%1" to %2…</source>
      <translation>Envoi de « %1 » à %2…</translation>
    </message>
    <message>
      <source>Sent by</source>
      <translation>Envoyé par</translation>
    </message>
    <message>
      <source>Separator sheets</source>
      <translation>Feuilles de séparation</translation>
    </message>
    <message>
      <source>Separators between transparencies</source>
      <translation>Intercalaires entre transparents</translation>
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
      <source>Shades of gray</source>
      <translation>Niveaux de gris</translation>
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
      <source>Sheets in a set</source>
      <translation>Feuilles par jeu</translation>
    </message>
    <message>
      <source>Sheets in an ordered set, such as tabs</source>
      <translation>Feuilles d’un jeu ordonné, comme des onglets</translation>
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
      <source>Shift to the right, side 1</source>
      <translation>Décalage à droite, recto</translation>
    </message>
    <message>
      <source>Shift to the right, side 2</source>
      <translation>Décalage à droite, verso</translation>
    </message>
    <message>
      <source>Shift upwards, side 1</source>
      <translation>Décalage en haut, recto</translation>
    </message>
    <message>
      <source>Shift upwards, side 2</source>
      <translation>Décalage en haut, verso</translation>
    </message>
    <message>
      <source>Side</source>
      <translation>Côté</translation>
    </message>
    <message>
      <source>Sides</source>
      <translation>Faces</translation>
    </message>
    <message>
      <source>Sides, when FinishingDuplex does not say</source>
      <translation>Faces, quand FinishingDuplex ne le dit pas</translation>
    </message>
    <message>
      <source>Single page tiff</source>
      <translation>TIFF, un fichier par page</translation>
    </message>
    <message>
      <source>Size</source>
      <translation>Format</translation>
    </message>
    <message>
      <source>Size of the picture</source>
      <translation>Taille de l’image</translation>
    </message>
    <message>
      <source>Size of the sheets</source>
      <translation>Taille des feuilles</translation>
    </message>
    <message>
      <source>Size of the text</source>
      <translation>Taille du texte</translation>
    </message>
    <message>
      <source>Slip sheets between the sets</source>
      <translation>Intercalaires entre les jeux</translation>
    </message>
    <message>
      <source>Smoothing of edges</source>
      <translation>Lissage des bords</translation>
    </message>
    <message>
      <source>Source profile of CMYK images: a code or a name</source>
      <translation>Profil source des images CMJN : un code ou un nom</translation>
    </message>
    <message>
      <source>Source profile of CMYK text and graphics: a code or a name</source>
      <translation>Profil source du texte et des graphiques CMJN : un code ou un nom</translation>
    </message>
    <message>
      <source>Source profile of RGB images: a code or a name</source>
      <translation>Profil source des images RVB : un code ou un nom</translation>
    </message>
    <message>
      <source>Source profile of RGB text and graphics: a code or a name</source>
      <translation>Profil source du texte et des graphiques RVB : un code ou un nom</translation>
    </message>
    <message>
      <source>Source profile of gray images</source>
      <translation>Profil source des images grises</translation>
    </message>
    <message>
      <source>Source profile of gray text and graphics</source>
      <translation>Profil source du texte et des graphiques gris</translation>
    </message>
    <message>
      <source>Space between booklet pages, points</source>
      <translation>Espace entre les pages du livret, en points</translation>
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
      <source>Stapled bottom left</source>
      <translation>Agrafé en bas à gauche</translation>
    </message>
    <message>
      <source>Stapled bottom right</source>
      <translation>Agrafé en bas à droite</translation>
    </message>
    <message>
      <source>Stapled top left</source>
      <translation>Agrafé en haut à gauche</translation>
    </message>
    <message>
      <source>Stapled top right</source>
      <translation>Agrafé en haut à droite</translation>
    </message>
    <message>
      <source>Staples</source>
      <translation>Agrafes</translation>
    </message>
    <message>
      <source>Staples in the fold</source>
      <translation>Agrafes dans le pli</translation>
    </message>
    <message>
      <source>Stock name</source>
      <translation>Nom du papier</translation>
    </message>
    <message>
      <source>Stock size code</source>
      <translation>Code du format de papier</translation>
    </message>
    <message>
      <source>Store a picture…</source>
      <translation>Enregistrer une image…</translation>
    </message>
    <message>
      <source>Store it under the document's name</source>
      <translation>Le garder sous le nom du document</translation>
    </message>
    <message>
      <source>Store this text as a new one</source>
      <translation>Garder ce texte comme nouveau</translation>
    </message>
    <message>
      <source>Stored as a form</source>
      <translation>Gardé comme formulaire</translation>
    </message>
    <message>
      <source>Stored form to print behind the pages</source>
      <translation>Formulaire gardé, imprimé derrière les pages</translation>
    </message>
    <message>
      <source>Superfine</source>
      <translation>Superfine</translation>
    </message>
    <message>
      <source>Surface</source>
      <translation>Surface</translation>
    </message>
    <message>
      <source>Surface finish</source>
      <translation>État de surface</translation>
    </message>
    <message>
      <source>Taking the job back…</source>
      <translation>Le travail est retiré…</translation>
    </message>
    <message>
      <source>Template</source>
      <translation>Modèle</translation>
    </message>
    <message>
      <source>Template of the printer</source>
      <translation>Modèle de l’imprimante</translation>
    </message>
    <message>
      <source>Text on the banner page</source>
      <translation>Texte de la page de garde</translation>
    </message>
    <message>
      <source>That watermark on the first page only</source>
      <translation>Ce filigrane sur la première page seulement</translation>
    </message>
    <message>
      <source>That watermark over the page, else behind</source>
      <translation>Ce filigrane par-dessus la page, sinon derrière</translation>
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
      <source>The cover's paper</source>
      <translation>Le papier de la couverture</translation>
    </message>
    <message>
      <source>The document's name</source>
      <translation>Le nom du document</translation>
    </message>
    <message>
      <source>The fax cover sheet was left out</source>
      <translation>La page de garde du fax a été omise</translation>
    </message>
    <message>
      <source>The finisher has no way to do this together with what is chosen already.</source>
      <translation>Le finisseur ne peut pas faire cela avec ce qui est déjà choisi.</translation>
    </message>
    <message>
      <source>The inside</source>
      <translation>L’intérieur</translation>
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
      <source>The job's paper</source>
      <translation>Le papier de la tâche</translation>
    </message>
    <message>
      <source>The outside</source>
      <translation>L’extérieur</translation>
    </message>
    <message>
      <source>The pages' paper</source>
      <translation>Le papier des pages</translation>
    </message>
    <message>
      <source>The printer %1 is gone. Choose another one.</source>
      <translation>L’imprimante %1 a disparu. Choisissez-en une autre.</translation>
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
      <source>The sheets' paper</source>
      <translation>Le papier des feuilles</translation>
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
      <source>Three holes</source>
      <translation>Trois trous</translation>
    </message>
    <message>
      <source>Three staples at the bottom</source>
      <translation>Trois agrafes en bas</translation>
    </message>
    <message>
      <source>Three staples at the left</source>
      <translation>Trois agrafes à gauche</translation>
    </message>
    <message>
      <source>Three staples at the right</source>
      <translation>Trois agrafes à droite</translation>
    </message>
    <message>
      <source>Three staples at the top</source>
      <translation>Trois agrafes en haut</translation>
    </message>
    <message>
      <source>Ticket that is kept under this name, below all other settings</source>
      <translation>Ticket gardé sous ce nom, sous tous les autres réglages</translation>
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
      <source>Tone reproduction curve</source>
      <translation>Courbe de reproduction des tons</translation>
    </message>
    <message>
      <source>Toner saving</source>
      <translation>Économie d’encre</translation>
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
      <source>Transmission speed</source>
      <translation>Vitesse de transmission</translation>
    </message>
    <message>
      <source>Trap width across the feed</source>
      <translation>Largeur de recouvrement en travers</translation>
    </message>
    <message>
      <source>Trap width along the feed</source>
      <translation>Largeur de recouvrement dans le sens de marche</translation>
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
      <source>Tray; 0 is the inserter behind the fuser</source>
      <translation>Bac ; 0 est l’inséreur après la fusion</translation>
    </message>
    <message>
      <source>Turn booklet sheets</source>
      <translation>Tourner les feuilles du livret</translation>
    </message>
    <message>
      <source>Turn the pages</source>
      <translation>Tourner les pages</translation>
    </message>
    <message>
      <source>Turn the sheets</source>
      <translation>Tourner les feuilles</translation>
    </message>
    <message>
      <source>Two holes</source>
      <translation>Deux trous</translation>
    </message>
    <message>
      <source>Two sides</source>
      <translation>Recto verso</translation>
    </message>
    <message>
      <source>Two staples</source>
      <translation>Deux agrafes</translation>
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
      <source>Type</source>
      <translation>Type</translation>
    </message>
    <message>
      <source>Type a name first.</source>
      <translation>Tapez d’abord un nom.</translation>
    </message>
    <message>
      <source>Type a number and a name first.</source>
      <translation>Tapez d’abord un numéro et un nom.</translation>
    </message>
    <message>
      <source>Type a number that can be dialed first.</source>
      <translation>Tapez d’abord un numéro à composer.</translation>
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
      <source>Type the text first.</source>
      <translation>Tapez d’abord le texte.</translation>
    </message>
    <message>
      <source>Uncollated</source>
      <translation>Non assemblées</translation>
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
      <source>Use ready</source>
      <translation>Utiliser ce qui est prêt</translation>
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
      <source>User, with or without an account</source>
      <translation>Utilisateur, avec ou sans compte</translation>
    </message>
    <message>
      <source>Value of a custom colour</source>
      <translation>Valeur d’une couleur personnalisée</translation>
    </message>
    <message>
      <source>Values are in 1/100 inch, else in 1/10 mm</source>
      <translation>Valeurs en 1/100 de pouce, sinon en 1/10 mm</translation>
    </message>
    <message>
      <source>Values are in 1/100 mm already</source>
      <translation>Valeurs déjà en 1/100 mm</translation>
    </message>
    <message>
      <source>Violet</source>
      <translation>Violet</translation>
    </message>
    <message>
      <source>Watermark by its name</source>
      <translation>Filigrane par son nom</translation>
    </message>
    <message>
      <source>Watermark by its place in the list; 1 is none</source>
      <translation>Filigrane par sa place dans la liste ; 1 est aucun</translation>
    </message>
    <message>
      <source>Watermark on the cover</source>
      <translation>Filigrane sur la page de garde</translation>
    </message>
    <message>
      <source>Watermark on the first page only</source>
      <translation>Filigrane sur la première page seulement</translation>
    </message>
    <message>
      <source>Weight</source>
      <translation>Grammage</translation>
    </message>
    <message>
      <source>Weight, g/m2</source>
      <translation>Grammage, g/m²</translation>
    </message>
    <message>
      <source>What I changed</source>
      <translation>Ce que j’ai changé</translation>
    </message>
    <message>
      <source>What becomes of it</source>
      <translation>Ce qu’elle devient</translation>
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
      <source>What you keep for this printer yourself (lpoptions), in every job:</source>
      <translation>Ce que vous gardez vous-même pour cette imprimante (lpoptions), dans chaque travail :</translation>
    </message>
    <message>
      <source>When</source>
      <translation>Quand</translation>
    </message>
    <message>
      <source>When a delayed job is printed</source>
      <translation>Quand une tâche différée est imprimée</translation>
    </message>
    <message>
      <source>When it is sent</source>
      <translation>Quand elle est envoyée</translation>
    </message>
    <message>
      <source>When the colorant is not loaded</source>
      <translation>Quand le colorant n’est pas chargé</translation>
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
      <source>Where the watermark goes</source>
      <translation>Où va le filigrane</translation>
    </message>
    <message>
      <source>Whether a saved job is printed too</source>
      <translation>Si une tâche enregistrée est aussi imprimée</translation>
    </message>
    <message>
      <source>Which sections the XML ticket has; only the presence of a key counts</source>
      <translation>Quelles sections a le ticket XML ; seule compte la présence d’une clé</translation>
    </message>
    <message>
      <source>Which sides are coated</source>
      <translation>Faces couchées</translation>
    </message>
    <message>
      <source>Which sides of the cover are printed</source>
      <translation>Faces imprimées de la couverture</translation>
    </message>
    <message>
      <source>Which watermark</source>
      <translation>Quel filigrane</translation>
    </message>
    <message>
      <source>Who gets the printout</source>
      <translation>À qui va l’imprimé</translation>
    </message>
    <message>
      <source>Who sends the job</source>
      <translation>Qui envoie la tâche</translation>
    </message>
    <message>
      <source>Width of a size without a code, 1/100 mm</source>
      <translation>Largeur d’un format sans code, 1/100 mm</translation>
    </message>
    <message>
      <source>Without a fax number, and so left out: %1</source>
      <translation>Sans numéro de fax, donc laissés de côté : %1</translation>
    </message>
    <message>
      <source>Write the XML ticket</source>
      <translation>Écrire le ticket XML</translation>
    </message>
    <message>
      <source>X grain</source>
      <translation>Fibres en X</translation>
    </message>
    <message>
      <source>Y grain</source>
      <translation>Fibres en Y</translation>
    </message>
    <message>
      <source>Yellow to blue</source>
      <translation>Jaune vers bleu</translation>
    </message>
    <message>
      <source>Yes</source>
      <translation>Oui</translation>
    </message>
    <message>
      <source>Z fold 1</source>
      <translation>Pli accordéon 1</translation>
    </message>
    <message>
      <source>Z fold 2</source>
      <translation>Pli accordéon 2</translation>
    </message>
    <message>
      <source>Z-fold</source>
      <translation>Pli accordéon</translation>
    </message>
    <message>
      <source>a PIN takes 4 to 10 digits</source>
      <translation>un code comprend 4 à 10 chiffres</translation>
    </message>
    <message>
      <source>a date such as "2026-12-31T18:30"</source>
      <translation>une date telle que « 2026-12-31T18:30 »</translation>
    </message>
    <message>
      <source>a delayed job</source>
      <translation>une tâche différée</translation>
    </message>
    <message>
      <source>a delayed job needs a DelayedPrintTime</source>
      <translation>une tâche différée a besoin d’une heure (DelayedPrintTime)</translation>
    </message>
    <message>
      <source>a fax</source>
      <translation>une télécopie</translation>
    </message>
    <message>
      <source>a group of keys</source>
      <translation>un groupe de clés</translation>
    </message>
    <message>
      <source>a job of this type</source>
      <translation>une tâche de ce type</translation>
    </message>
    <message>
      <source>a list of groups</source>
      <translation>une liste de groupes</translation>
    </message>
    <message>
      <source>a name has at least one character</source>
      <translation>un nom a au moins un caractère</translation>
    </message>
    <message>
      <source>a name has at most %1 bytes</source>
      <translation>un nom a au plus %1 octets</translation>
    </message>
    <message>
      <source>a name has no control characters</source>
      <translation>un nom n’a pas de caractères de contrôle</translation>
    </message>
    <message>
      <source>a name is UTF-8 with composed characters</source>
      <translation>un nom est en UTF-8 à caractères composés</translation>
    </message>
    <message>
      <source>a sample set</source>
      <translation>un jeu d’épreuve</translation>
    </message>
    <message>
      <source>a secure job needs a PIN; give one as JobPIN=Custom.DIGITS (%1)</source>
      <translation>une impression protégée a besoin d’un code (%1) ; tapez-le sous « Tâche »</translation>
    </message>
    <message>
      <source>a text</source>
      <translation>un texte</translation>
    </message>
    <message>
      <source>a whole number</source>
      <translation>un nombre entier</translation>
    </message>
    <message>
      <source>accounting: the job names no account</source>
      <translation>comptabilité : la tâche ne nomme pas de compte</translation>
    </message>
    <message>
      <source>accounting: the job names no user</source>
      <translation>comptabilité : la tâche ne nomme pas d’utilisateur</translation>
    </message>
    <message>
      <source>add %1</source>
      <translation>ajoutez %1</translation>
    </message>
    <message>
      <source>an image</source>
      <translation>une image</translation>
    </message>
    <message>
      <source>an option that nobody knows looks like a misspelt PIN; did you mean %1?</source>
      <translation>une option inconnue ressemble à un code mal écrit ; vouliez-vous dire %1 ?</translation>
    </message>
    <message>
      <source>an ordinary job</source>
      <translation>une tâche ordinaire</translation>
    </message>
    <message>
      <source>another program keeps it locked; try again soon</source>
      <translation>un autre programme le verrouille ; réessayez bientôt</translation>
    </message>
    <message>
      <source>any page</source>
      <translation>aucune page</translation>
    </message>
    <message>
      <source>anything</source>
      <translation>n’importe quoi</translation>
    </message>
    <message>
      <source>around the booklet</source>
      <translation>autour du livret</translation>
    </message>
    <message>
      <source>behind the page</source>
      <translation>derrière la page</translation>
    </message>
    <message>
      <source>cannot be converted here; install the packages cups and cups-filters</source>
      <translation>ne peut pas être converti ici ; installez les paquets cups et cups-filters</translation>
    </message>
    <message>
      <source>cannot be converted: %1</source>
      <translation>ne peut pas être converti : %1</translation>
    </message>
    <message>
      <source>did you mean %1?</source>
      <translation>vouliez-vous dire %1 ?</translation>
    </message>
    <message>
      <source>fax settings have no effect in a job that is no fax</source>
      <translation>les réglages de télécopie sont sans effet dans une tâche qui n’en est pas une</translation>
    </message>
    <message>
      <source>fax: %1 is cut, the printer takes %2 bytes; shorten it</source>
      <translation>télécopie : %1 est coupé, l’imprimante prend %2 octets ; raccourcissez-le</translation>
    </message>
    <message>
      <source>give %1</source>
      <translation>donnez %1</translation>
    </message>
    <message>
      <source>has no effect while no XML ticket is written; set %1 to 1</source>
      <translation>est sans effet tant qu’aucun ticket XML n’est écrit ; mettez %1 à 1</translation>
    </message>
    <message>
      <source>has no effect without %1; add {"JTMLOptionAll": true} there</source>
      <translation>est sans effet sans %1 ; ajoutez-y {"JTMLOptionAll": true}</translation>
    </message>
    <message>
      <source>in the middle of the booklet</source>
      <translation>au milieu du livret</translation>
    </message>
    <message>
      <source>insert</source>
      <translation>encart</translation>
    </message>
    <message>
      <source>is empty: neither PostScript nor PDF</source>
      <translation>est vide : ni PostScript ni PDF</translation>
    </message>
    <message>
      <source>is no whole number</source>
      <translation>n’est pas un nombre entier</translation>
    </message>
    <message>
      <source>is not printed with such settings</source>
      <translation>n’est pas imprimé avec de tels réglages</translation>
    </message>
    <message>
      <source>is nothing that the spooler can print: %1</source>
      <translation>n’est rien que le système d’impression puisse imprimer : %1</translation>
    </message>
    <message>
      <source>it takes %1 to %2</source>
      <translation>il va de %1 à %2</translation>
    </message>
    <message>
      <source>its fax cover sheet cannot be drawn</source>
      <translation>sa page de garde de fax ne peut pas être dessinée</translation>
    </message>
    <message>
      <source>more PJL lines than any job needs</source>
      <translation>plus de lignes PJL qu’il n’en faut à une tâche</translation>
    </message>
    <message>
      <source>more PostScript jobs than can be told apart</source>
      <translation>plus de tâches PostScript qu’on ne peut distinguer</translation>
    </message>
    <message>
      <source>no PJL envelope: the printer takes it for plain PostScript</source>
      <translation>pas d’enveloppe PJL : l’imprimante y voit du PostScript simple</translation>
    </message>
    <message>
      <source>no PostScript document</source>
      <translation>pas de document PostScript</translation>
    </message>
    <message>
      <source>no page comments: pages cannot be counted, and nothing can be drawn on them</source>
      <translation>pas de commentaires de page : les pages ne peuvent être ni comptées ni complétées</translation>
    </message>
    <message>
      <source>no page is printed</source>
      <translation>aucune page n’est imprimée</translation>
    </message>
    <message>
      <source>no stock has the code %1; take a known one, or give Width and Length</source>
      <translation>aucun papier n’a le code %1 ; prenez-en un connu, ou donnez Width et Length</translation>
    </message>
    <message>
      <source>not a byte of it came: the document has none of these pages (page-ranges, page-set), or a program before this filter failed; choose others, or look what it says</source>
      <translation>pas un octet n'en est arrivé : le document n'a aucune de ces pages (page-ranges, page-set), ou un programme avant ce filtre a échoué ; choisissez d'autres pages, ou voyez ce que dit ce programme</translation>
    </message>
    <message>
      <source>not a byte of it came; look for what the programs before this filter say, make room on their disk and send it again</source>
      <translation>pas un octet n'en est arrivé ; voyez ce que disent les programmes avant ce filtre, faites de la place sur leur disque et renvoyez-le</translation>
    </message>
    <message>
      <source>not printed</source>
      <translation>non imprimée</translation>
    </message>
    <message>
      <source>on the first page only</source>
      <translation>sur la première page seulement</translation>
    </message>
    <message>
      <source>other paper</source>
      <translation>autre papier</translation>
    </message>
    <message>
      <source>other settings for the pages %1</source>
      <translation>autres réglages pour les pages %1</translation>
    </message>
    <message>
      <source>over the page</source>
      <translation>par-dessus la page</translation>
    </message>
    <message>
      <source>over the page, which shows through</source>
      <translation>par-dessus la page, qui transparaît</translation>
    </message>
    <message>
      <source>page %1</source>
      <translation>page %1</translation>
    </message>
    <message>
      <source>page-ranges, page-set: the document has none of these pages, nothing comes out</source>
      <translation>page-ranges, page-set : le document n'a aucune de ces pages, rien ne sort</translation>
    </message>
    <message>
      <source>print it again as the reason says</source>
      <translation>Imprimez-le à nouveau comme le dit la raison</translation>
    </message>
    <message>
      <source>print it again as the reason says, and remove this one: cancel %1</source>
      <translation>Imprimez-le à nouveau comme le dit la raison, et supprimez celui-ci : cancel %1</translation>
    </message>
    <message>
      <source>recipient %1 of the fax cannot be read; send it as a group of settings</source>
      <translation>le destinataire %1 de la télécopie ne peut être lu ; envoyez-le comme groupe de réglages</translation>
    </message>
    <message>
      <source>recipient %1 of the fax has a number with nothing that can be dialed; correct it</source>
      <translation>le destinataire %1 de la télécopie a un numéro où rien ne se compose ; corrigez-le</translation>
    </message>
    <message>
      <source>recipient %1 of the fax has no number; give one</source>
      <translation>le destinataire %1 de la télécopie n’a pas de numéro ; donnez-en un</translation>
    </message>
    <message>
      <source>secure, but no PIN is set</source>
      <translation>protégée, mais sans code</translation>
    </message>
    <message>
      <source>slip sheet after the set</source>
      <translation>feuille de séparation après le jeu</translation>
    </message>
    <message>
      <source>such as 5-8, 12</source>
      <translation>par exemple 5-8, 12</translation>
    </message>
    <message>
      <source>takes %1</source>
      <translation>prend %1</translation>
    </message>
    <message>
      <source>takes %1: %2</source>
      <translation>prend %1 : %2</translation>
    </message>
    <message>
      <source>takes %1; did you mean "%2"?</source>
      <translation>prend %1 ; vouliez-vous dire « %2 » ?</translation>
    </message>
    <message>
      <source>the PIN is cut on its way to the printer; %1 safely</source>
      <translation>le code est coupé en chemin ; pour être sûr, %1</translation>
    </message>
    <message>
      <source>the PostScript does not end (%%EOF)</source>
      <translation>le PostScript ne finit pas (%%EOF)</translation>
    </message>
    <message>
      <source>the XML ticket does not end</source>
      <translation>le ticket XML ne finit pas</translation>
    </message>
    <message>
      <source>the document does not begin with %!PS-Adobe, so its PIN or fax number would not hold; print it by another program</source>
      <translation>le document ne commence pas par %!PS-Adobe, son code PIN ou son numéro de fax ne vaudrait donc pas ; imprimez-le avec un autre programme</translation>
    </message>
    <message>
      <source>the document ends the printer's job before its own end; what follows may be missing on paper; print it by another program</source>
      <translation>le document termine le travail de l'imprimante avant sa propre fin ; la suite peut manquer sur le papier ; imprimez-le avec un autre programme</translation>
    </message>
    <message>
      <source>the end of the job (PJL EOJ) is missing</source>
      <translation>la fin de la tâche (PJL EOJ) manque</translation>
    </message>
    <message>
      <source>the fax has no %1; send its settings along</source>
      <translation>la télécopie n’a pas de %1 ; envoyez ses réglages avec elle</translation>
    </message>
    <message>
      <source>the fax has no recipient that can be read; give FaxNumber=Custom.NUMBER</source>
      <translation>la télécopie n’a pas de destinataire lisible ; ajoutez-en un sous « Télécopie »</translation>
    </message>
    <message>
      <source>the figure has a preview for DOS around it, which printers do not understand, so nothing may come out; "ps2pdf -dEPSCrop" makes a PDF of it that can be printed</source>
      <translation>la figure est entourée d'un aperçu pour DOS que les imprimantes ne comprennent pas, si bien que rien ne sortira peut-être ; « ps2pdf -dEPSCrop » en fait un PDF imprimable</translation>
    </message>
    <message>
      <source>the figure has no page comments, so the spooler has found no page in it and nothing comes out; "ps2pdf -dEPSCrop" makes a PDF of it that can be printed</source>
      <translation>la figure n'a pas de commentaires de page, le spouleur n'y a donc trouvé aucune page et rien ne sort ; « ps2pdf -dEPSCrop » en fait un PDF imprimable</translation>
    </message>
    <message>
      <source>the job header holds a line that is no PJL</source>
      <translation>l’en-tête contient une ligne qui n’est pas du PJL</translation>
    </message>
    <message>
      <source>the job holds no PostScript</source>
      <translation>le travail ne contient pas de PostScript</translation>
    </message>
    <message>
      <source>the job was cut short: the document goes on behind its end or an exit from its language, where its PIN or fax number does not hold any more; print it by another program</source>
      <translation>le travail a été coupé : le document continue après sa fin ou après une sortie de son langage, où son code PIN ou son numéro de fax ne vaut plus ; imprimez-le avec un autre programme</translation>
    </message>
    <message>
      <source>the job was not printed</source>
      <translation>le travail n'a pas été imprimé</translation>
    </message>
    <message>
      <source>the printer stops after page %1: %2</source>
      <translation>l’imprimante s’arrête après la page %1 : %2</translation>
    </message>
    <message>
      <source>the printer stops before the first page: %1</source>
      <translation>l’imprimante s’arrête avant la première page : %1</translation>
    </message>
    <message>
      <source>the printer would print no page of this job</source>
      <translation>l’imprimante n’imprimerait aucune page de ce travail</translation>
    </message>
    <message>
      <source>the scrambled form of this PIN would end the printer's line; %1 safely</source>
      <translation>la forme brouillée de ce code finirait la ligne de l’imprimante ; pour être sûr, %1</translation>
    </message>
    <message>
      <source>the sheets are folded in the middle, but the pages are not laid out as a booklet</source>
      <translation>les feuilles sont pliées au milieu, mais les pages ne sont pas disposées en livret</translation>
    </message>
    <message>
      <source>the spooler did not say that it has the document</source>
      <translation>le système d’impression n’a pas confirmé avoir le document</translation>
    </message>
    <message>
      <source>the spooler does not answer; start it, for example with "systemctl start cups"</source>
      <translation>le système d’impression ne répond pas ; démarrez-le, par exemple avec « systemctl start cups »</translation>
    </message>
    <message>
      <source>the watermark behind the page cannot be seen on %1, where the document paints its own ground; put it over the page (WMPlace=Overlay)</source>
      <translation>le filigrane derrière la page ne se voit pas : %1, où le document peint son propre fond ; mettez-le par-dessus la page</translation>
    </message>
    <message>
      <source>the watermark's image was left out or is not whole; the log tells why, the administrator can store it anew</source>
      <translation>l'image du filigrane a été omise ou n'est pas entière ; le journal dit pourquoi, l'administrateur peut l'enregistrer à nouveau</translation>
    </message>
    <message>
      <source>there is no such queue</source>
      <translation>cette file d’attente n’existe pas</translation>
    </message>
    <message>
      <source>there is no such queue; did you mean %1?</source>
      <translation>cette file d’attente n’existe pas ; vouliez-vous dire %1 ?</translation>
    </message>
    <message>
      <source>true or false</source>
      <translation>oui ou non</translation>
    </message>
    <message>
      <source>unknown key</source>
      <translation>clé inconnue</translation>
    </message>
    <message>
      <source>unknown key; did you mean %1?</source>
      <translation>clé inconnue ; vouliez-vous dire %1 ?</translation>
    </message>
    <message>
      <source>unknown option; did you mean %1?</source>
      <translation>option inconnue ; vouliez-vous dire %1 ?</translation>
    </message>
    <message>
      <source>watermark %1 was left out: the store has %2; "zarvo watermark list" shows them</source>
      <translation>le filigrane %1 a été omis : %2 sont enregistrés ; « zarvo watermark list » les montre</translation>
    </message>
    <message>
      <source>watermark: a page is a picture, which does not tell how it is read, so its mark stands upright on the paper; when that is wrong, which a preview shows, say WMTurn=90 or WMTurn=270</source>
      <translation>filigrane : une page est une image qui ne dit pas dans quel sens elle se lit, sa marque est donc droite sur le papier ; si c'est faux, ce qu'un aperçu montre, indiquez WMTurn=90 ou WMTurn=270</translation>
    </message>
  </context>
</TS>
