<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en_GB">
<context>
    <name>Accessibility</name>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
</context>
<context>
    <name>AtomicFile</name>
    <message>
        <source>The file “%1” was written, but the disk did not confirm it: %2.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» a été écrit, mais le disque ne l’a pas confirmé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be reached: %2.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est inaccessible&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be replaced: %2.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne peut pas être remplacé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The folder of “%1” cannot be opened: %2.</source>
        <translation>Le dossier de «&#xa0;%1&#xa0;» ne peut pas être ouvert&#xa0;: %2.</translation>
    </message>
    <message>
        <source>No new file can be made in the folder of “%1”: %2.</source>
        <translation>Impossible de créer un nouveau fichier dans le dossier de «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be written: %2.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’a pas pu être écrit&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The permissions of “%1” could not be kept: %2.</source>
        <translation>Les droits d’accès de «&#xa0;%1&#xa0;» n’ont pas pu être conservés&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be brought to the disk: %2.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’a pas pu être transmis au disque&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be checked: %2.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’a pas pu être vérifié&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The disk gave back other data for “%1” than was written: %2.</source>
        <translation>Pour «&#xa0;%1&#xa0;», le disque a rendu d’autres données que celles qui ont été écrites&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be written to its end: %2.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’a pas pu être écrit jusqu’à la fin&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be put in its place: %2.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’a pas pu être mis à sa place&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file “%1” is not replaced: %2.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’est pas remplacé&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>BookEntryWindow</name>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Picture 1, cover</source>
        <translation>Image 1, couverture</translation>
    </message>
    <message>
        <source>Clear this picture</source>
        <translation>Effacer cette image</translation>
    </message>
    <message>
        <source>Clear picture 1</source>
        <translation>Effacer l’image 1</translation>
    </message>
    <message>
        <source>Picture 2, back</source>
        <translation>Image 2, quatrième de couverture</translation>
    </message>
    <message>
        <source>Clear picture 2</source>
        <translation>Effacer l’image 2</translation>
    </message>
    <message>
        <source>Picture 3</source>
        <translation>Image 3</translation>
    </message>
    <message>
        <source>Clear picture 3</source>
        <translation>Effacer l’image 3</translation>
    </message>
    <message>
        <source>Picture 4</source>
        <translation>Image 4</translation>
    </message>
    <message>
        <source>Clear picture 4</source>
        <translation>Effacer l’image 4</translation>
    </message>
    <message>
        <source>Picture 5</source>
        <translation>Image 5</translation>
    </message>
    <message>
        <source>Clear picture 5</source>
        <translation>Effacer l’image 5</translation>
    </message>
    <message>
        <source>&amp;ISBN:</source>
        <translation>IS&amp;BN&#xa0;:</translation>
    </message>
    <message>
        <source>Loo&amp;k Up…</source>
        <translation>Rec&amp;hercher…</translation>
    </message>
    <message>
        <source>Looking up the book</source>
        <translation>Recherche du livre</translation>
    </message>
    <message>
        <source>Esc stops</source>
        <translation>Échap pour arrêter</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>&amp;Auteur&#xa0;:</translation>
    </message>
    <message>
        <source>T&amp;ype:</source>
        <translation>&amp;Format&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Rating:</source>
        <translation>N&amp;ote&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Publisher:</source>
        <translation>Éd&amp;iteur&#xa0;:</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pa&amp;ges&#xa0;:</translation>
    </message>
    <message>
        <source>Publishe&amp;d:</source>
        <translation>Pa&amp;rution&#xa0;:</translation>
    </message>
    <message>
        <source>Published month</source>
        <translation>Mois de parution</translation>
    </message>
    <message>
        <source>Published year</source>
        <translation>Année de parution</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Copyrig&amp;ht:</source>
        <translation>Cop&amp;yright&#xa0;:</translation>
    </message>
    <message>
        <source>Copyright month</source>
        <translation>Mois du copyright</translation>
    </message>
    <message>
        <source>Copyright year</source>
        <translation>Année du copyright</translation>
    </message>
    <message>
        <source>&amp;First read:</source>
        <translation>Pre&amp;mière lecture&#xa0;:</translation>
    </message>
    <message>
        <source>First read month</source>
        <translation>Mois de la première lecture</translation>
    </message>
    <message>
        <source>First read year</source>
        <translation>Année de la première lecture</translation>
    </message>
    <message>
        <source>&amp;Last read:</source>
        <translation>Dernière le&amp;cture&#xa0;:</translation>
    </message>
    <message>
        <source>Last read month</source>
        <translation>Mois de la dernière lecture</translation>
    </message>
    <message>
        <source>Last read year</source>
        <translation>Année de la dernière lecture</translation>
    </message>
    <message>
        <source>Purchased:</source>
        <translation>Achat&#xa0;:</translation>
    </message>
    <message>
        <source>Purchased month</source>
        <translation>Mois d’achat</translation>
    </message>
    <message>
        <source>Purchased year</source>
        <translation>Année d’achat</translation>
    </message>
    <message>
        <source>Valued:</source>
        <translation>Estimation&#xa0;:</translation>
    </message>
    <message>
        <source>Valued month</source>
        <translation>Mois d’estimation</translation>
    </message>
    <message>
        <source>Valued year</source>
        <translation>Année d’estimation</translation>
    </message>
    <message>
        <source>Price paid:</source>
        <translation>Prix payé&#xa0;:</translation>
    </message>
    <message>
        <source>Est. &amp;value:</source>
        <translation>&amp;Valeur estimée&#xa0;:</translation>
    </message>
    <message>
        <source>Paid from:</source>
        <translation>Acheté chez&#xa0;:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Emplacement&#xa0;:</translation>
    </message>
    <message>
        <source>Lent t&amp;o:</source>
        <translation>&amp;Prêté à&#xa0;:</translation>
    </message>
    <message>
        <source>Lent:</source>
        <translation>Prêt&#xa0;:</translation>
    </message>
    <message>
        <source>Lent month</source>
        <translation>Mois du prêt</translation>
    </message>
    <message>
        <source>Lent year</source>
        <translation>Année du prêt</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Possédé</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>Dédicacé</translation>
    </message>
    <message>
        <source>First edition</source>
        <translation>Édition originale</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lu</translation>
    </message>
    <message>
        <source>&amp;Notes:</source>
        <translation>Remar&amp;ques&#xa0;:</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>Double-click a name to change it, or press F2 in its field.</source>
        <translation>Double-cliquez sur un nom pour le modifier, ou appuyez sur F2 dans son champ.</translation>
    </message>
    <message>
        <source>Gro&amp;ups…</source>
        <translation>Groupe&amp;s…</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message>
        <source>Add &amp;More</source>
        <translation>A&amp;jouter un autre</translation>
    </message>
    <message>
        <source>Save this book and add another one (Ctrl+Shift+Return)</source>
        <translation>Enregistrer ce livre et en ajouter un autre (Ctrl+Maj+Entrée)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save this book and close its window (Ctrl+Return)</source>
        <translation>Enregistrer ce livre et fermer sa fenêtre (Ctrl+Entrée)</translation>
    </message>
</context>
<context>
    <name>BookListWindow</name>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>Picture of the selected book</source>
        <translation>Image du livre sélectionné</translation>
    </message>
    <message>
        <source>Books</source>
        <translation>Livres</translation>
    </message>
</context>
<context>
    <name>BookLookup</name>
    <message>
        <source>Look Up</source>
        <translation>Recherche par ISBN</translation>
    </message>
    <message>
        <source>&amp;ISBN:</source>
        <translation>&amp;ISBN&#xa0;:</translation>
    </message>
    <message>
        <source>Looking up the book</source>
        <translation>Recherche du livre</translation>
    </message>
    <message>
        <source>Esc stops</source>
        <translation>Échap pour arrêter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>BookType</name>
    <message>
        <source>Hardcover</source>
        <translation>Relié</translation>
    </message>
    <message>
        <source>Paperback</source>
        <translation>Broché</translation>
    </message>
    <message>
        <source>Audio Book</source>
        <translation>Livre audio</translation>
    </message>
    <message>
        <source>eBook</source>
        <translation>Livre numérique</translation>
    </message>
</context>
<context>
    <name>CollectionFileType</name>
    <message>
        <source>Tomely Collections</source>
        <translation>Collections Tomely</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Last Read</source>
        <translation>Dern. lecture</translation>
    </message>
    <message>
        <source>Last Read Date</source>
        <translation>Date de dernière lecture</translation>
    </message>
    <message>
        <source>Published</source>
        <translation>Parution</translation>
    </message>
    <message>
        <source>Published Date</source>
        <translation>Date de parution</translation>
    </message>
    <message>
        <source>Purchased</source>
        <translation>Achat</translation>
    </message>
    <message>
        <source>Purchased Date</source>
        <translation>Date d’achat</translation>
    </message>
    <message>
        <source>First Read</source>
        <translation>1re&#xa0;lecture</translation>
    </message>
    <message>
        <source>First Read Date</source>
        <translation>Date de première lecture</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Copyright Date</source>
        <translation>Date du copyright</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Possédé</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>Dédicacé</translation>
    </message>
    <message>
        <source>First Edition</source>
        <translation>Édition originale</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lu</translation>
    </message>
    <message>
        <source>Read / Listened To</source>
        <translation>Lu&#xa0;/ écouté</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Price Paid</source>
        <translation>Prix payé</translation>
    </message>
    <message>
        <source>Est Value</source>
        <translation>Valeur estimée</translation>
    </message>
    <message>
        <source>ISBN</source>
        <translation>ISBN</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Lent To</source>
        <translation>Prêté à</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>Est Value Date</source>
        <translation>Date d’estimation</translation>
    </message>
    <message>
        <source>Lent Date</source>
        <translation>Date du prêt</translation>
    </message>
    <message>
        <source>Price Paid From</source>
        <translation>Acheté chez</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Custom Field %1</source>
        <translation>Champ personnalisé %1</translation>
    </message>
    <message>
        <source>Custom Date %1</source>
        <translation>Date personnalisée %1</translation>
    </message>
    <message>
        <source>Custom Switch %1</source>
        <translation>Case personnalisée %1</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>Personnalisé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>Author &amp; Title</source>
        <translation>Auteur et titre</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>&amp;Add Book…</source>
        <translation>&amp;Ajouter un livre…</translation>
    </message>
    <message>
        <source>&amp;Edit Book…</source>
        <translation>&amp;Modifier le livre…</translation>
    </message>
    <message>
        <source>&amp;Delete Book…</source>
        <translation>&amp;Supprimer le livre…</translation>
    </message>
    <message>
        <source>&amp;Remove from Group…</source>
        <translation>&amp;Retirer du groupe…</translation>
    </message>
    <message>
        <source>&amp;Scale All Pictures…</source>
        <translation>Re&amp;dimensionner toutes les images…</translation>
    </message>
    <message>
        <source>Remove All &amp;Pictures…</source>
        <translation>Supprimer &amp;toutes les images…</translation>
    </message>
    <message>
        <source>&amp;New Group</source>
        <translation>&amp;Nouveau groupe</translation>
    </message>
    <message>
        <source>&amp;Rename Group</source>
        <translation>&amp;Renommer le groupe</translation>
    </message>
    <message>
        <source>&amp;Delete Group…</source>
        <translation>&amp;Supprimer le groupe…</translation>
    </message>
    <message>
        <source>&amp;Manage Groups…</source>
        <translation>&amp;Gérer les groupes…</translation>
    </message>
    <message>
        <source>&amp;Columns…</source>
        <translation>&amp;Colonnes…</translation>
    </message>
    <message>
        <source>Customise &amp;Toolbar…</source>
        <translation>Personnaliser la &amp;barre d’outils…</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>Rec&amp;hercher</translation>
    </message>
    <message>
        <source>Clear &amp;Filter</source>
        <translation>&amp;Effacer le filtre</translation>
    </message>
    <message>
        <source>&amp;Import XML…</source>
        <translation>&amp;Importer un fichier XML…</translation>
    </message>
    <message>
        <source>Export &amp;XML…</source>
        <translation>Exporter en &amp;XML…</translation>
    </message>
    <message>
        <source>&amp;Export CSV…</source>
        <translation>Exporter en &amp;CSV…</translation>
    </message>
    <message>
        <source>Print Previe&amp;w…</source>
        <translation>&amp;Aperçu avant impression…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>Im&amp;primer…</translation>
    </message>
</context>
<context>
    <name>CsvExport</name>
    <message>
        <source>There is not enough memory</source>
        <translation>La mémoire est insuffisante</translation>
    </message>
</context>
<context>
    <name>CustomizeList</name>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>&amp;Show these columns:</source>
        <translation>&amp;Afficher ces colonnes&#xa0;:</translation>
    </message>
    <message>
        <source>Ticked columns are shown in the book list. The space bar ticks the current one.</source>
        <translation>Les colonnes cochées sont affichées dans la liste des livres. La barre d’espace coche la colonne courante.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>CustomizeToolbarDialog</name>
    <message>
        <source>Customise Toolbar</source>
        <translation>Personnaliser la barre d’outils</translation>
    </message>
    <message>
        <source>&amp;Items to drag into the toolbar:</source>
        <translation>É&amp;léments à faire glisser dans la barre d’outils&#xa0;:</translation>
    </message>
    <message>
        <source>Items to choose from</source>
        <translation>Éléments disponibles</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>&amp;Toolbar; drag items to move them, and out of it to remove them:</source>
        <translation>&amp;Barre d’outils&#xa0;; faites glisser les éléments pour les déplacer, ou hors de la barre pour les retirer&#xa0;:</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Move &amp;Left</source>
        <translation>Déplacer à &amp;gauche</translation>
    </message>
    <message>
        <source>Move Ri&amp;ght</source>
        <translation>Déplacer à &amp;droite</translation>
    </message>
    <message>
        <source>Restore &amp;Default Set</source>
        <translation>Rétablir le &amp;jeu par défaut</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>A&amp;fficher&#xa0;:</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Icon and Text</source>
        <translation>Icônes et texte</translation>
    </message>
    <message>
        <source>Icon Only</source>
        <translation>Icônes seules</translation>
    </message>
    <message>
        <source>Text Only</source>
        <translation>Texte seul</translation>
    </message>
    <message>
        <source>Do&amp;ne</source>
        <translation>&amp;Terminé</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;ller</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Tout &amp;sélectionner</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
</context>
<context>
    <name>EditorMenus</name>
    <message>
        <source>&amp;Book</source>
        <translation>&amp;Livre</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save and &amp;Add More</source>
        <translation>Enregistrer et &amp;ajouter un autre</translation>
    </message>
    <message>
        <source>&amp;Look Up…</source>
        <translation>&amp;Rechercher…</translation>
    </message>
    <message>
        <source>&amp;Groups…</source>
        <translation>&amp;Groupes…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>EntryForm</name>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
</context>
<context>
    <name>ExportCSVOptions</name>
    <message>
        <source>Export CSV</source>
        <translation>Exporter en CSV</translation>
    </message>
    <message>
        <source>Books</source>
        <translation>Livres</translation>
    </message>
    <message>
        <source>All books</source>
        <translation>Tous les livres</translation>
    </message>
    <message>
        <source>Displayed books</source>
        <translation>Livres affichés</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Colonnes</translation>
    </message>
    <message>
        <source>All fields of a book</source>
        <translation>Tous les champs d’un livre</translation>
    </message>
    <message>
        <source>Only fields that the list shows</source>
        <translation>Seulement les champs affichés dans la liste</translation>
    </message>
    <message>
        <source>Da&amp;tes</source>
        <translation>&amp;Dates</translation>
    </message>
    <message>
        <source>Month and year in two columns</source>
        <translation>Mois et année dans deux colonnes</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Year and month, as 2001-03</source>
        <translation>Année et mois, par exemple 2001-03</translation>
    </message>
    <message>
        <source>Year, month and day, as 2001-03-01</source>
        <translation>Année, mois et jour, par exemple 2001-03-01</translation>
    </message>
    <message>
        <source>C&amp;heck boxes</source>
        <translation>Cases à coc&amp;her</translation>
    </message>
    <message>
        <source>1 and 0</source>
        <translation>1 et 0</translation>
    </message>
    <message>
        <source>TRUE and FALSE</source>
        <translation>TRUE et FALSE</translation>
    </message>
    <message>
        <source>Y and N</source>
        <translation>Y et N</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Groupes</translation>
    </message>
    <message>
        <source>No column</source>
        <translation>Aucune colonne</translation>
    </message>
    <message>
        <source>A column for each group</source>
        <translation>Une colonne pour chaque groupe</translation>
    </message>
    <message>
        <source>One column, names separated by:</source>
        <translation>Une colonne, noms séparés par&#xa0;:</translation>
    </message>
    <message>
        <source>Text between the names of groups</source>
        <translation>Texte entre les noms des groupes</translation>
    </message>
    <message>
        <source>&amp;ISBN</source>
        <translation>&amp;ISBN</translation>
    </message>
    <message>
        <source>One column</source>
        <translation>Une colonne</translation>
    </message>
    <message>
        <source>Two columns, for 10 and 13 digits</source>
        <translation>Deux colonnes, pour 10 et 13 chiffres</translation>
    </message>
    <message>
        <source>&amp;Line breaks in texts</source>
        <translation>Sauts de &amp;ligne dans les textes</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Conservés</translation>
    </message>
    <message>
        <source>Replaced by a space</source>
        <translation>Remplacés par une espace</translation>
    </message>
    <message>
        <source>Written as \n</source>
        <translation>Écrits sous la forme \n</translation>
    </message>
    <message>
        <source>&amp;Preview:</source>
        <translation>A&amp;perçu&#xa0;:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>The first lines of the file as they will be.</source>
        <translation>Les premières lignes du fichier telles qu’elles seront.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ExportChoices</name>
    <message>
        <source>&amp;All books (%1)</source>
        <translation>&amp;Tous les livres (%1)</translation>
    </message>
    <message>
        <source>&amp;Displayed books (%1)</source>
        <translation>Livres &amp;affichés (%1)</translation>
    </message>
</context>
<context>
    <name>ExportOptions</name>
    <message>
        <source>Export XML</source>
        <translation>Exporter en XML</translation>
    </message>
    <message>
        <source>Books</source>
        <translation>Livres</translation>
    </message>
    <message>
        <source>All books</source>
        <translation>Tous les livres</translation>
    </message>
    <message>
        <source>Displayed books</source>
        <translation>Livres affichés</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>FilePanels</name>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; already exists.

Do you want to replace it?</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà.

Voulez-vous le remplacer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>FileReading</name>
    <message>
        <source>Not a plain file</source>
        <translation>Ce n’est pas un fichier ordinaire</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Filter field</source>
        <translation>Champ du filtre</translation>
    </message>
    <message>
        <source>Comparison of dates</source>
        <translation>Comparaison de dates</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Check mark</source>
        <translation>Case à cocher</translation>
    </message>
    <message>
        <source>Comparison of numbers</source>
        <translation>Comparaison de nombres</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
</context>
<context>
    <name>GroupManager</name>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Guide</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>The guide is not installed.</source>
        <translation>Le guide n’est pas installé.</translation>
    </message>
    <message>
        <source>No program of this desktop shows the guide. It is at %1</source>
        <translation>Aucun programme de ce bureau n’affiche le guide. Il se trouve ici&#xa0;: %1</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Signaler un problème</translation>
    </message>
    <message>
        <source>The versions are on the clipboard</source>
        <translation>Les versions sont dans le presse-papiers</translation>
    </message>
    <message>
        <source>Paste them into your report, and write what you did, what you expected and what happened instead. Nothing of your books is among them.</source>
        <translation>Collez-les dans votre rapport et indiquez ce que vous avez fait, ce que vous attendiez et ce qui s’est produit à la place. Elles ne contiennent rien sur vos livres.</translation>
    </message>
    <message>
        <source>About Tomely</source>
        <translation>À propos de Tomely</translation>
    </message>
    <message>
        <source>Tomely %1</source>
        <translation>Tomely %1</translation>
    </message>
    <message>
        <source>A catalogue of the books you own.

Free software under the MIT licence, built with Qt %1, Expat and Hunspell.</source>
        <translation>Un catalogue des livres que vous possédez.

Logiciel libre sous licence MIT, construit avec Qt %1, Expat et Hunspell.</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versions</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>&amp;Effacer la liste</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Collections &amp;récentes</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New Collection</source>
        <translation>&amp;Nouvelle collection</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Re&amp;vert to Saved</source>
        <translation>Re&amp;venir à la version enregistrée</translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation>Pré&amp;férences…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Fer&amp;mer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;About Tomely</source>
        <translation>À &amp;propos de Tomely</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guide</translation>
    </message>
    <message>
        <source>&amp;Report a Problem…</source>
        <translation>&amp;Signaler un problème…</translation>
    </message>
</context>
<context>
    <name>Months</name>
    <message>
        <source>January</source>
        <translation>janvier</translation>
    </message>
    <message>
        <source>February</source>
        <translation>février</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>April</source>
        <translation>avril</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juillet</translation>
    </message>
    <message>
        <source>August</source>
        <translation>août</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septembre</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octobre</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>December</source>
        <translation>décembre</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A month and a year, as in &quot;June, 2001&quot;</extracomment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Start-up</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>&amp;Open this collection when Tomely starts</source>
        <translation>&amp;Ouvrir cette collection au démarrage de Tomely</translation>
    </message>
    <message>
        <source>Collection to open</source>
        <translation>Collection à ouvrir</translation>
    </message>
    <message>
        <source>No collection chosen</source>
        <translation>Aucune collection choisie</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>C&amp;hoisir…</translation>
    </message>
    <message>
        <source>Choose collection to open</source>
        <translation>Choisir la collection à ouvrir</translation>
    </message>
    <message>
        <source>Without one, Tomely starts with a new, untitled collection.</source>
        <translation>Sans elle, Tomely démarre avec une nouvelle collection sans titre.</translation>
    </message>
    <message>
        <source>New books</source>
        <translation>Nouveaux livres</translation>
    </message>
    <message>
        <source>Set &amp;First read to this month</source>
        <translation>Mettre la &amp;première lecture au mois en cours</translation>
    </message>
    <message>
        <source>Set &amp;Last read to this month</source>
        <translation>Mettre la &amp;dernière lecture au mois en cours</translation>
    </message>
    <message>
        <source>Set Purchased to this &amp;month</source>
        <translation>Mettre la date d’achat au &amp;mois en cours</translation>
    </message>
    <message>
        <source>Mark as &amp;read</source>
        <translation>Marquer comme &amp;lu</translation>
    </message>
    <message>
        <source>Start in the &amp;ISBN field</source>
        <translation>Commencer dans le champ &amp;ISBN</translation>
    </message>
    <message>
        <source>Open editors on the Custom &amp;tab</source>
        <translation>Ouvrir les fiches sur l’ongle&amp;t «&#xa0;Personnalisé&#xa0;»</translation>
    </message>
    <message>
        <source>Look-up and pictures</source>
        <translation>Recherche par ISBN et images</translation>
    </message>
    <message>
        <source>Do &amp;not look a book up when its ISBN changes</source>
        <translation>&amp;Ne pas rechercher un livre quand son ISBN change</translation>
    </message>
    <message>
        <source>Look Up… in the editor still does.</source>
        <translation>«&#xa0;Rechercher…&#xa0;» dans la fiche le fait toujours.</translation>
    </message>
    <message>
        <source>Take only the first of several aut&amp;hors</source>
        <translation>Ne garder que le premier a&amp;uteur s’il y en a plusieurs</translation>
    </message>
    <message>
        <source>Do not fetch co&amp;vers</source>
        <translation>Ne pas télécharger les cou&amp;vertures</translation>
    </message>
    <message>
        <source>Ask the &amp;second source too</source>
        <translation>Interroger aussi la &amp;seconde source</translation>
    </message>
    <message>
        <source>Scale &amp;down new pictures to the size of their place</source>
        <translation>&amp;Réduire les nouvelles images à la taille de leur emplacement</translation>
    </message>
    <message>
        <source>Keeps the file small, but the full size is not stored.</source>
        <translation>Le fichier reste petit, mais la taille réelle n’est pas conservée.</translation>
    </message>
    <message>
        <source>Picture &amp;quality:</source>
        <translation>&amp;Qualité des images&#xa0;:</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>Sources of look-ups</source>
        <translation>Sources des recherches par ISBN</translation>
    </message>
    <message>
        <source>Book id&amp;entifiers:</source>
        <translation>Id&amp;entifiants de livres&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Book records:</source>
        <translation>Notices &amp;bibliographiques&#xa0;:</translation>
    </message>
    <message>
        <source>Book &amp;pages:</source>
        <translation>Pa&amp;ges de livres&#xa0;:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune valeur</translation>
    </message>
    <message>
        <source>Service &amp;key:</source>
        <translation>&amp;Clé du service&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Appliquer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Of every book; a new one then does not start in the ISBN field.</source>
        <translation>Celles de tous les livres&#xa0;; un nouveau ne commence alors pas dans le champ ISBN.</translation>
    </message>
    <message>
        <source>For what the first lacks. It needs a host of book pages below.</source>
        <translation>Pour ce qui manque à la première. Nécessite un hôte de pages de livres ci-dessous.</translation>
    </message>
    <message>
        <source>Of new pictures: 1 makes the smallest files, 10 the best pictures.</source>
        <translation>Celle des nouvelles images&#xa0;: 1 donne les plus petits fichiers, 10 les meilleures images.</translation>
    </message>
</context>
<context>
    <name>PrintPreview</name>
    <message>
        <source>Print Preview</source>
        <translation>Aperçu avant impression</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>Pa&amp;ge&#xa0;:</translation>
    </message>
    <message>
        <source>of 1</source>
        <translation>sur 1</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>P&amp;récédente</translation>
    </message>
    <message>
        <source>Previous page (Page Up)</source>
        <translation>Page précédente (Page préc)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivante</translation>
    </message>
    <message>
        <source>Next page (Page Down)</source>
        <translation>Page suivante (Page suiv)</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>&amp;Orientation&#xa0;:</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>&amp;Zoom:</source>
        <translation>&amp;Zoom&#xa0;:</translation>
    </message>
    <message>
        <source>Whole Page</source>
        <translation>Page entière</translation>
    </message>
    <message>
        <source>Page Width</source>
        <translation>Largeur de page</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100&#xa0;%</translation>
    </message>
    <message>
        <source>200 %</source>
        <translation>200&#xa0;%</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>TomelyDelegate</name>
    <message>
        <source>You will be prompted to select your default file.

This is only required once.</source>
        <translation>Il va vous être demandé de choisir votre fichier par défaut.

Cela n’est nécessaire qu’une fois.</translation>
    </message>
    <message>
        <source>Change default file to selected file?</source>
        <translation>Faire du fichier choisi le fichier par défaut&#xa0;?</translation>
    </message>
</context>
<context>
    <name>ToolbarItems</name>
    <message>
        <source>Add Book</source>
        <translation>Ajouter un livre</translation>
    </message>
    <message>
        <source>Edit Book</source>
        <translation>Modifier le livre</translation>
    </message>
    <message>
        <source>Delete Book</source>
        <translation>Supprimer le livre</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Add Group</source>
        <translation>Nouveau groupe</translation>
    </message>
    <message>
        <source>Delete Group</source>
        <translation>Supprimer le groupe</translation>
    </message>
    <message>
        <source>Author &amp; Title</source>
        <translation>Auteur et titre</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Flexible Space</source>
        <translation>Espace flexible</translation>
    </message>
    <message>
        <source>Customise</source>
        <translation>Personnaliser</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Séparateur</translation>
    </message>
</context>
<context>
    <name>WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
</context>
<context>
    <name>XmlExport</name>
    <message>
        <source>There is not enough memory</source>
        <translation>La mémoire est insuffisante</translation>
    </message>
</context>
<context>
    <name>XmlImport</name>
    <message>
        <source>The collection takes no more books</source>
        <translation>La collection ne peut pas contenir plus de livres</translation>
    </message>
    <message>
        <source>not an XML file that can be read: %1</source>
        <translation>ce n’est pas un fichier XML lisible&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>La mémoire est insuffisante</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A catalogue of the books you own.</source>
        <translation>Un catalogue des livres que vous possédez.</translation>
    </message>
    <message>
        <source>Collections to open; the default collection without any.</source>
        <translation>Collections à ouvrir&#xa0;; à défaut, la collection par défaut.</translation>
    </message>
    <message>
        <source>Write a picture of the first window to FILE, print its status line and quit.</source>
        <translation>Enregistrer une image de la première fenêtre dans FILE, afficher sa ligne d’état et quitter.</translation>
    </message>
    <message>
        <source>Tomely is running already but is busy at the moment. It opens your collections as soon as it is ready.</source>
        <translation>Tomely est déjà en cours d’exécution, mais il est occupé pour le moment. Il ouvrira vos collections dès qu’il sera prêt.</translation>
    </message>
</context>
<context>
    <name>tomely::BookCommands</name>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Voulez-vous vraiment supprimer «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete %1 books?</source>
        <translation>Voulez-vous vraiment supprimer %1 livres&#xa0;?</translation>
    </message>
    <message>
        <source>Remove images from all books?</source>
        <translation>Supprimer les images de tous les livres&#xa0;?</translation>
    </message>
    <message>
        <source>Removing pictures…</source>
        <translation>Suppression des images…</translation>
    </message>
    <message>
        <source>Scale all images to the book entry display size?</source>
        <translation>Redimensionner toutes les images à la taille d’affichage de la fiche du livre&#xa0;?</translation>
    </message>
    <message>
        <source>Scaling pictures…</source>
        <translation>Redimensionnement des images…</translation>
    </message>
</context>
<context>
    <name>tomely::BookEntryWindowController</name>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>%1 - New Entry</source>
        <translation>%1 - Nouveau livre</translation>
    </message>
    <message>
        <source>Listened To</source>
        <translation>Écouté</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lu</translation>
    </message>
    <message>
        <source>This book has no title yet and cannot be saved.

Do you want to discard it?</source>
        <translation>Ce livre n’a pas encore de titre et ne peut pas être enregistré.

Voulez-vous l’abandonner&#xa0;?</translation>
    </message>
    <message>
        <source>Do you want to save the changes to the book &apos;%1&apos;?</source>
        <translation>Voulez-vous enregistrer les modifications du livre «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
</context>
<context>
    <name>tomely::BookExchange</name>
    <message>
        <source>XML Files</source>
        <translation>Fichiers XML</translation>
    </message>
    <message>
        <source>CSV Files</source>
        <translation>Fichiers CSV</translation>
    </message>
    <message>
        <source>Exporting books…</source>
        <translation>Exportation des livres…</translation>
    </message>
    <message>
        <source>Importing books…</source>
        <translation>Importation des livres…</translation>
    </message>
</context>
<context>
    <name>tomely::BookListDocument</name>
    <message>
        <source>Tomely cannot open files from newer versions.</source>
        <translation>Tomely ne peut pas ouvrir les fichiers de versions plus récentes.</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>endommagé&#xa0;: %1</translation>
    </message>
    <message>
        <source>not a collection file</source>
        <translation>ce n’est pas un fichier de collection</translation>
    </message>
    <message>
        <source>Open this file when Tomely starts?

You may change this in Preferences at any time.</source>
        <translation>Ouvrir ce fichier au démarrage de Tomely&#xa0;?

Vous pouvez changer cela à tout moment dans les préférences.</translation>
    </message>
</context>
<context>
    <name>tomely::BookListWindowController</name>
    <message>
        <source>%1 of %2 displayed</source>
        <translation>%1 sur %2 affichés</translation>
    </message>
</context>
<context>
    <name>tomely::BookPrinting</name>
    <message>
        <source>&apos;%1&apos; could not be printed.

%2</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être imprimé.

%2</translation>
    </message>
    <message>
        <source>The printer does not take the pages.</source>
        <translation>L’imprimante n’accepte pas les pages.</translation>
    </message>
    <message>
        <source>The list has none of the chosen pages.</source>
        <translation>La liste ne contient aucune des pages choisies.</translation>
    </message>
    <message>
        <source>Printing &apos;%1&apos;…</source>
        <translation>Impression de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>La mémoire est insuffisante</translation>
    </message>
</context>
<context>
    <name>tomely::BookTableModel</name>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
</context>
<context>
    <name>tomely::CommandActions</name>
    <message>
        <source>Add to &amp;Group</source>
        <translation>Ajouter au &amp;groupe</translation>
    </message>
    <message>
        <source>&amp;Book</source>
        <translation>&amp;Livre</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Groupe</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>No Groups</source>
        <translation>Aucun groupe</translation>
    </message>
</context>
<context>
    <name>tomely::CommandToolbar</name>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>&amp;Icon and Text</source>
        <translation>&amp;Icônes et texte</translation>
    </message>
    <message>
        <source>Icon &amp;Only</source>
        <translation>Icônes &amp;seules</translation>
    </message>
    <message>
        <source>Te&amp;xt Only</source>
        <translation>&amp;Texte seul</translation>
    </message>
    <message>
        <source>More commands</source>
        <translation>Autres commandes</translation>
    </message>
</context>
<context>
    <name>tomely::Document</name>
    <message>
        <source>There is not enough memory</source>
        <translation>La mémoire est insuffisante</translation>
    </message>
</context>
<context>
    <name>tomely::DocumentController</name>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Sans titre %1</translation>
    </message>
    <message>
        <source>Opening &apos;%1&apos;…</source>
        <translation>Ouverture de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be opened.

%2</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’a pas pu être ouvert.

%2</translation>
    </message>
    <message>
        <source>Saving &apos;%1&apos;…</source>
        <translation>Enregistrement de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>&apos;%1&apos; could not be saved.

%2</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être enregistré.

%2</translation>
    </message>
    <message>
        <source>The file of &apos;%1&apos; was changed by another program since you opened it.

Do you want to replace it with what you have here? What the other program wrote will be lost.</source>
        <translation>Le fichier de «&#xa0;%1&#xa0;» a été modifié par un autre programme depuis que vous l’avez ouvert.

Voulez-vous le remplacer par ce que vous avez ici&#xa0;? Ce que l’autre programme a écrit sera perdu.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is open in another window. Choose another name.</source>
        <translation>«&#xa0;%1&#xa0;» est ouvert dans une autre fenêtre. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>Do you want to go back to the saved version of &apos;%1&apos;?

Your changes since will be lost.</source>
        <translation>Voulez-vous revenir à la version enregistrée de «&#xa0;%1&#xa0;»&#xa0;?

Les modifications apportées depuis seront perdues.</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revenir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Do you want to save the changes to &apos;%1&apos;?</source>
        <translation>Voulez-vous enregistrer les modifications de «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
</context>
<context>
    <name>tomely::DraggableImageView</name>
    <message>
        <source>Drop or paste a picture here, or press Return to choose a file.</source>
        <translation>Déposez ou collez une image ici, ou appuyez sur Entrée pour choisir un fichier.</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Aucune image</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <translation>%1 sur %2 pixels</translation>
    </message>
    <message>
        <source>This is not a picture that Tomely can read.</source>
        <translation>Ce n’est pas une image que Tomely sait lire.</translation>
    </message>
    <message>
        <source>Choose &amp;Picture…</source>
        <translation>Choisir une &amp;image…</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Pas&amp;te</source>
        <translation>Co&amp;ller</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>This picture is damaged</source>
        <translation>Cette image est endommagée</translation>
    </message>
    <message>
        <source>Drop a picture here</source>
        <translation>Déposez une image ici</translation>
    </message>
    <message>
        <source>%1&#xa0;×&#xa0;%2</source>
        <comment>width and height of a picture in pixels</comment>
        <translation>%1&#xa0;×&#xa0;%2</translation>
    </message>
</context>
<context>
    <name>tomely::EditableLabel</name>
    <message>
        <source>Double-click to rename</source>
        <translation>Double-cliquez pour renommer</translation>
    </message>
</context>
<context>
    <name>tomely::EmptyList</name>
    <message>
        <source>&amp;Add the First Book</source>
        <translation>Ajouter le premier li&amp;vre</translation>
    </message>
    <message>
        <source>&amp;Clear Filter</source>
        <translation>Effa&amp;cer le filtre</translation>
    </message>
    <message>
        <source>There are no books in this collection yet.</source>
        <translation>Il n’y a pas encore de livres dans cette collection.</translation>
    </message>
    <message>
        <source>There are no books in this group.</source>
        <translation>Il n’y a pas de livres dans ce groupe.</translation>
    </message>
    <message>
        <source>No books match the filter.</source>
        <translation>Aucun livre ne correspond au filtre.</translation>
    </message>
</context>
<context>
    <name>tomely::FilterBar</name>
    <message>
        <source>All books</source>
        <translation>Tous les livres</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Cochés</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Non cochés</translation>
    </message>
    <message>
        <source>With pictures</source>
        <translation>Avec images</translation>
    </message>
    <message>
        <source>Without pictures</source>
        <translation>Sans images</translation>
    </message>
    <message>
        <source>In a group</source>
        <translation>Dans un groupe</translation>
    </message>
    <message>
        <source>In no group</source>
        <translation>Dans aucun groupe</translation>
    </message>
    <message>
        <source>is</source>
        <translation>est</translation>
    </message>
    <message>
        <source>is not</source>
        <translation>n’est pas</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>inférieur à</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>supérieur à</translation>
    </message>
    <message>
        <source>before</source>
        <translation>avant</translation>
    </message>
    <message>
        <source>after</source>
        <translation>après</translation>
    </message>
    <message>
        <source>on or before</source>
        <translation>jusqu’à</translation>
    </message>
    <message>
        <source>on or after</source>
        <translation>à partir de</translation>
    </message>
    <message>
        <source>Any month</source>
        <translation>Mois indifférent</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search %1</source>
        <translation>Rechercher&#xa0;: %1</translation>
    </message>
    <message>
        <source>Choose what to search</source>
        <translation>Choisir où rechercher</translation>
    </message>
    <message>
        <source>Choose what to search: %1</source>
        <translation>Choisir où rechercher&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>tomely::GroupCommands</name>
    <message>
        <source>Are you sure you want to delete group &apos;%1&apos;?</source>
        <translation>Voulez-vous vraiment supprimer le groupe «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Remove selected book(s) from group?</source>
        <translation>Retirer du groupe les livres sélectionnés&#xa0;?</translation>
    </message>
</context>
<context>
    <name>tomely::GroupManagerController</name>
    <message>
        <source>Tick the groups that the book is in.</source>
        <translation>Cochez les groupes auxquels le livre appartient.</translation>
    </message>
    <message>
        <source>The groups of this collection.</source>
        <translation>Les groupes de cette collection.</translation>
    </message>
</context>
<context>
    <name>tomely::GroupTableModel</name>
    <message>
        <source>Library</source>
        <translation>Bibliothèque</translation>
    </message>
</context>
<context>
    <name>tomely::HeaderMenu</name>
    <message>
        <source>&amp;Columns…</source>
        <translation>&amp;Colonnes…</translation>
    </message>
    <message>
        <source>&amp;Hide This Column</source>
        <translation>&amp;Masquer cette colonne</translation>
    </message>
    <message>
        <source>&amp;Hide &apos;%1&apos;</source>
        <translation>&amp;Masquer «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>tomely::ImageWells</name>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
</context>
<context>
    <name>tomely::LookupWorkflow</name>
    <message>
        <source>Book lookup did not find the requested book.</source>
        <translation>La recherche par ISBN n’a pas trouvé le livre demandé.</translation>
    </message>
</context>
<context>
    <name>tomely::NotesView</name>
    <message>
        <source>No Suggestions</source>
        <translation>Aucune suggestion</translation>
    </message>
    <message>
        <source>Ignore Spelling</source>
        <translation>Ignorer l’orthographe</translation>
    </message>
</context>
<context>
    <name>tomely::PreferencesController</name>
    <message>
        <source>The preferences could not be written to &apos;%1&apos;. They count until Tomely ends.</source>
        <translation>Les préférences n’ont pas pu être écrites dans «&#xa0;%1&#xa0;». Elles restent valables jusqu’à la fermeture de Tomely.</translation>
    </message>
    <message>
        <source>Leave a field empty for what it shows. A host is a name, with a colon and a port where need be: books.example.org:8443.</source>
        <translation>Laissez un champ vide pour employer la valeur qu’il indique. Un hôte est un nom, suivi au besoin d’un deux-points et d’un port&#xa0;: books.example.org:8443.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host, so look-ups ask nobody there. Type a name like books.example.org, with a colon and a port where need be.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un hôte&#xa0;: aucune recherche n’y est faite. Saisissez un nom comme books.example.org, suivi au besoin d’un deux-points et d’un port.</translation>
    </message>
</context>
<context>
    <name>tomely::PrintPreview</name>
    <message>
        <source>of %L1</source>
        <translation>sur %L1</translation>
    </message>
</context>
<context>
    <name>tomely::StartWindow</name>
    <message>
        <source>A catalogue of the books you own</source>
        <translation>Un catalogue des livres que vous possédez</translation>
    </message>
    <message>
        <source>&amp;New Collection</source>
        <translation>&amp;Nouvelle collection</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Recent collections</source>
        <translation>Collections &amp;récentes</translation>
    </message>
    <message>
        <source>Recent collections</source>
        <translation>Collections récentes</translation>
    </message>
</context>
</TS>
