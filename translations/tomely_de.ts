<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_GB">
<context>
    <name>Accessibility</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
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
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>AtomicFile</name>
    <message>
        <source>The file “%1” was written, but the disk did not confirm it: %2.</source>
        <translation>Die Datei „%1“ wurde geschrieben, aber der Datenträger hat es nicht bestätigt: %2.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be reached: %2.</source>
        <translation>Die Datei „%1“ ist nicht erreichbar: %2.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be replaced: %2.</source>
        <translation>Die Datei „%1“ kann nicht ersetzt werden: %2.</translation>
    </message>
    <message>
        <source>The folder of “%1” cannot be opened: %2.</source>
        <translation>Der Ordner von „%1“ kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>No new file can be made in the folder of “%1”: %2.</source>
        <translation>Im Ordner von „%1“ kann keine neue Datei angelegt werden: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be written: %2.</source>
        <translation>Die Datei „%1“ konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The permissions of “%1” could not be kept: %2.</source>
        <translation>Die Zugriffsrechte von „%1“ konnten nicht beibehalten werden: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be brought to the disk: %2.</source>
        <translation>Die Datei „%1“ konnte nicht auf den Datenträger übertragen werden: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be checked: %2.</source>
        <translation>Die Datei „%1“ konnte nicht überprüft werden: %2.</translation>
    </message>
    <message>
        <source>The disk gave back other data for “%1” than was written: %2.</source>
        <translation>Der Datenträger hat für „%1“ andere Daten zurückgegeben, als geschrieben wurden: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be written to its end: %2.</source>
        <translation>Die Datei „%1“ konnte nicht vollständig geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be put in its place: %2.</source>
        <translation>Die Datei „%1“ konnte nicht an ihren Platz verschoben werden: %2.</translation>
    </message>
    <message>
        <source>The file “%1” is not replaced: %2.</source>
        <translation>Die Datei „%1“ wird nicht ersetzt: %2.</translation>
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
        <translation>Bild 1, Titelbild</translation>
    </message>
    <message>
        <source>Clear this picture</source>
        <translation>Dieses Bild entfernen</translation>
    </message>
    <message>
        <source>Clear picture 1</source>
        <translation>Bild 1 entfernen</translation>
    </message>
    <message>
        <source>Picture 2, back</source>
        <translation>Bild 2, Rückseite</translation>
    </message>
    <message>
        <source>Clear picture 2</source>
        <translation>Bild 2 entfernen</translation>
    </message>
    <message>
        <source>Picture 3</source>
        <translation>Bild 3</translation>
    </message>
    <message>
        <source>Clear picture 3</source>
        <translation>Bild 3 entfernen</translation>
    </message>
    <message>
        <source>Picture 4</source>
        <translation>Bild 4</translation>
    </message>
    <message>
        <source>Clear picture 4</source>
        <translation>Bild 4 entfernen</translation>
    </message>
    <message>
        <source>Picture 5</source>
        <translation>Bild 5</translation>
    </message>
    <message>
        <source>Clear picture 5</source>
        <translation>Bild 5 entfernen</translation>
    </message>
    <message>
        <source>&amp;ISBN:</source>
        <translation>&amp;ISBN:</translation>
    </message>
    <message>
        <source>Loo&amp;k Up…</source>
        <translation>Nachschla&amp;gen…</translation>
    </message>
    <message>
        <source>Looking up the book</source>
        <translation>Das Buch wird nachgeschlagen</translation>
    </message>
    <message>
        <source>Esc stops</source>
        <translation>Esc bricht ab</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>&amp;Autor:</translation>
    </message>
    <message>
        <source>T&amp;ype:</source>
        <translation>F&amp;ormat:</translation>
    </message>
    <message>
        <source>&amp;Rating:</source>
        <translation>Be&amp;wertung:</translation>
    </message>
    <message>
        <source>&amp;Publisher:</source>
        <translation>&amp;Verlag:</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>S&amp;eiten:</translation>
    </message>
    <message>
        <source>Publishe&amp;d:</source>
        <translation>Ers&amp;chienen:</translation>
    </message>
    <message>
        <source>Published month</source>
        <translation>Erschienen, Monat</translation>
    </message>
    <message>
        <source>Published year</source>
        <translation>Erschienen, Jahr</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Copyrig&amp;ht:</source>
        <translation>Cop&amp;yright:</translation>
    </message>
    <message>
        <source>Copyright month</source>
        <translation>Copyright, Monat</translation>
    </message>
    <message>
        <source>Copyright year</source>
        <translation>Copyright, Jahr</translation>
    </message>
    <message>
        <source>&amp;First read:</source>
        <translation>Erst&amp;mals gelesen:</translation>
    </message>
    <message>
        <source>First read month</source>
        <translation>Erstmals gelesen, Monat</translation>
    </message>
    <message>
        <source>First read year</source>
        <translation>Erstmals gelesen, Jahr</translation>
    </message>
    <message>
        <source>&amp;Last read:</source>
        <translation>&amp;Zuletzt gelesen:</translation>
    </message>
    <message>
        <source>Last read month</source>
        <translation>Zuletzt gelesen, Monat</translation>
    </message>
    <message>
        <source>Last read year</source>
        <translation>Zuletzt gelesen, Jahr</translation>
    </message>
    <message>
        <source>Purchased:</source>
        <translation>Gekauft:</translation>
    </message>
    <message>
        <source>Purchased month</source>
        <translation>Gekauft, Monat</translation>
    </message>
    <message>
        <source>Purchased year</source>
        <translation>Gekauft, Jahr</translation>
    </message>
    <message>
        <source>Valued:</source>
        <translation>Geschätzt:</translation>
    </message>
    <message>
        <source>Valued month</source>
        <translation>Geschätzt, Monat</translation>
    </message>
    <message>
        <source>Valued year</source>
        <translation>Geschätzt, Jahr</translation>
    </message>
    <message>
        <source>Price paid:</source>
        <translation>Kaufpreis:</translation>
    </message>
    <message>
        <source>Est. &amp;value:</source>
        <translation>Sc&amp;hätzwert:</translation>
    </message>
    <message>
        <source>Paid from:</source>
        <translation>Gekauft bei:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Standort:</translation>
    </message>
    <message>
        <source>Lent t&amp;o:</source>
        <translation>Ver&amp;liehen an:</translation>
    </message>
    <message>
        <source>Lent:</source>
        <translation>Verliehen:</translation>
    </message>
    <message>
        <source>Lent month</source>
        <translation>Verliehen, Monat</translation>
    </message>
    <message>
        <source>Lent year</source>
        <translation>Verliehen, Jahr</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Im Besitz</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>Signiert</translation>
    </message>
    <message>
        <source>First edition</source>
        <translation>Erstausgabe</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Gelesen</translation>
    </message>
    <message>
        <source>&amp;Notes:</source>
        <translation>&amp;Notizen:</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene Felder</translation>
    </message>
    <message>
        <source>Double-click a name to change it, or press F2 in its field.</source>
        <translation>Doppelklicken Sie auf einen Namen, um ihn zu ändern, oder drücken Sie F2 in seinem Feld.</translation>
    </message>
    <message>
        <source>Gro&amp;ups…</source>
        <translation>Gru&amp;ppen…</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abb&amp;rechen</translation>
    </message>
    <message>
        <source>Add &amp;More</source>
        <translation>Speichern un&amp;d weiteres</translation>
    </message>
    <message>
        <source>Save this book and add another one (Ctrl+Shift+Return)</source>
        <translation>Dieses Buch speichern und ein weiteres hinzufügen (Strg+Umschalt+Eingabe)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save this book and close its window (Ctrl+Return)</source>
        <translation>Dieses Buch speichern und sein Fenster schließen (Strg+Eingabe)</translation>
    </message>
</context>
<context>
    <name>BookListWindow</name>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Picture of the selected book</source>
        <translation>Bild des ausgewählten Buchs</translation>
    </message>
    <message>
        <source>Books</source>
        <translation>Bücher</translation>
    </message>
</context>
<context>
    <name>BookLookup</name>
    <message>
        <source>Look Up</source>
        <translation>Nachschlagen</translation>
    </message>
    <message>
        <source>&amp;ISBN:</source>
        <translation>&amp;ISBN:</translation>
    </message>
    <message>
        <source>Looking up the book</source>
        <translation>Das Buch wird nachgeschlagen</translation>
    </message>
    <message>
        <source>Esc stops</source>
        <translation>Esc bricht ab</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>Gebunden</translation>
    </message>
    <message>
        <source>Paperback</source>
        <translation>Taschenbuch</translation>
    </message>
    <message>
        <source>Audio Book</source>
        <translation>Hörbuch</translation>
    </message>
    <message>
        <source>eBook</source>
        <translation>E-Book</translation>
    </message>
</context>
<context>
    <name>CollectionFileType</name>
    <message>
        <source>Tomely Collections</source>
        <translation>Tomely-Sammlungen</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Verlag</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Bewertung</translation>
    </message>
    <message>
        <source>Last Read</source>
        <translation>Zuletzt gelesen</translation>
    </message>
    <message>
        <source>Last Read Date</source>
        <translation>Letztes Lesedatum</translation>
    </message>
    <message>
        <source>Published</source>
        <translation>Erschienen</translation>
    </message>
    <message>
        <source>Published Date</source>
        <translation>Erscheinungsdatum</translation>
    </message>
    <message>
        <source>Purchased</source>
        <translation>Gekauft</translation>
    </message>
    <message>
        <source>Purchased Date</source>
        <translation>Kaufdatum</translation>
    </message>
    <message>
        <source>First Read</source>
        <translation>Erstmals gelesen</translation>
    </message>
    <message>
        <source>First Read Date</source>
        <translation>Erstes Lesedatum</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Copyright Date</source>
        <translation>Copyright-Datum</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Im Besitz</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>Signiert</translation>
    </message>
    <message>
        <source>First Edition</source>
        <translation>Erstausgabe</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Gelesen</translation>
    </message>
    <message>
        <source>Read / Listened To</source>
        <translation>Gelesen / Gehört</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Price Paid</source>
        <translation>Kaufpreis</translation>
    </message>
    <message>
        <source>Est Value</source>
        <translation>Schätzwert</translation>
    </message>
    <message>
        <source>ISBN</source>
        <translation>ISBN</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>Lent To</source>
        <translation>Verliehen an</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Est Value Date</source>
        <translation>Schätzdatum</translation>
    </message>
    <message>
        <source>Lent Date</source>
        <translation>Verleihdatum</translation>
    </message>
    <message>
        <source>Price Paid From</source>
        <translation>Gekauft bei</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Custom Field %1</source>
        <translation>Eigenes Feld %1</translation>
    </message>
    <message>
        <source>Custom Date %1</source>
        <translation>Eigenes Datum %1</translation>
    </message>
    <message>
        <source>Custom Switch %1</source>
        <translation>Eigener Schalter %1</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>Eigene Felder: %1</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Author &amp; Title</source>
        <translation>Autor und Titel</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>&amp;Add Book…</source>
        <translation>Buch &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Edit Book…</source>
        <translation>Buch &amp;bearbeiten…</translation>
    </message>
    <message>
        <source>&amp;Delete Book…</source>
        <translation>Buch &amp;löschen…</translation>
    </message>
    <message>
        <source>&amp;Remove from Group…</source>
        <translation>Aus Gruppe &amp;entfernen…</translation>
    </message>
    <message>
        <source>&amp;Scale All Pictures…</source>
        <translation>Alle Bilder &amp;skalieren…</translation>
    </message>
    <message>
        <source>Remove All &amp;Pictures…</source>
        <translation>Alle B&amp;ilder entfernen…</translation>
    </message>
    <message>
        <source>&amp;New Group</source>
        <translation>&amp;Neue Gruppe</translation>
    </message>
    <message>
        <source>&amp;Rename Group</source>
        <translation>Gruppe &amp;umbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete Group…</source>
        <translation>Gruppe &amp;löschen…</translation>
    </message>
    <message>
        <source>&amp;Manage Groups…</source>
        <translation>Gruppen &amp;verwalten…</translation>
    </message>
    <message>
        <source>&amp;Columns…</source>
        <translation>&amp;Spalten…</translation>
    </message>
    <message>
        <source>Customise &amp;Toolbar…</source>
        <translation>Symbolleiste &amp;anpassen…</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Clear &amp;Filter</source>
        <translation>&amp;Filter zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Import XML…</source>
        <translation>XML &amp;importieren…</translation>
    </message>
    <message>
        <source>Export &amp;XML…</source>
        <translation>&amp;XML exportieren…</translation>
    </message>
    <message>
        <source>&amp;Export CSV…</source>
        <translation>&amp;CSV exportieren…</translation>
    </message>
    <message>
        <source>Print Previe&amp;w…</source>
        <translation>Druck&amp;vorschau…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
</context>
<context>
    <name>CsvExport</name>
    <message>
        <source>There is not enough memory</source>
        <translation>Es ist nicht genügend Speicher verfügbar</translation>
    </message>
</context>
<context>
    <name>CustomizeList</name>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>&amp;Show these columns:</source>
        <translation>&amp;Diese Spalten anzeigen:</translation>
    </message>
    <message>
        <source>Ticked columns are shown in the book list. The space bar ticks the current one.</source>
        <translation>Angekreuzte Spalten werden in der Bücherliste angezeigt. Die Leertaste kreuzt die aktuelle Spalte an.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>Symbolleiste anpassen</translation>
    </message>
    <message>
        <source>&amp;Items to drag into the toolbar:</source>
        <translation>&amp;Elemente, die in die Symbolleiste gezogen werden können:</translation>
    </message>
    <message>
        <source>Items to choose from</source>
        <translation>Verfügbare Elemente</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Toolbar; drag items to move them, and out of it to remove them:</source>
        <translation>&amp;Symbolleiste; ziehen Sie Elemente, um sie zu verschieben, und heraus, um sie zu entfernen:</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>Move &amp;Left</source>
        <translation>Nach &amp;links</translation>
    </message>
    <message>
        <source>Move Ri&amp;ght</source>
        <translation>Nach &amp;rechts</translation>
    </message>
    <message>
        <source>Restore &amp;Default Set</source>
        <translation>Standard &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>An&amp;zeigen:</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Icon and Text</source>
        <translation>Symbole und Text</translation>
    </message>
    <message>
        <source>Icon Only</source>
        <translation>Nur Symbole</translation>
    </message>
    <message>
        <source>Text Only</source>
        <translation>Nur Text</translation>
    </message>
    <message>
        <source>Do&amp;ne</source>
        <translation>Ferti&amp;g</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>A&amp;lles auswählen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
</context>
<context>
    <name>EditorMenus</name>
    <message>
        <source>&amp;Book</source>
        <translation>B&amp;uch</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save and &amp;Add More</source>
        <translation>Speichern und &amp;weiteres hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Look Up…</source>
        <translation>&amp;Nachschlagen…</translation>
    </message>
    <message>
        <source>&amp;Groups…</source>
        <translation>&amp;Gruppen…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Sch&amp;ließen</translation>
    </message>
</context>
<context>
    <name>EntryForm</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>ExportCSVOptions</name>
    <message>
        <source>Export CSV</source>
        <translation>CSV exportieren</translation>
    </message>
    <message>
        <source>Books</source>
        <translation>Bücher</translation>
    </message>
    <message>
        <source>All books</source>
        <translation>Alle Bücher</translation>
    </message>
    <message>
        <source>Displayed books</source>
        <translation>Angezeigte Bücher</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Spalten</translation>
    </message>
    <message>
        <source>All fields of a book</source>
        <translation>Alle Felder eines Buchs</translation>
    </message>
    <message>
        <source>Only fields that the list shows</source>
        <translation>Nur in der Liste angezeigte Felder</translation>
    </message>
    <message>
        <source>Da&amp;tes</source>
        <translation>&amp;Datumsangaben</translation>
    </message>
    <message>
        <source>Month and year in two columns</source>
        <translation>Monat und Jahr in zwei Spalten</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Year and month, as 2001-03</source>
        <translation>Jahr und Monat, z.&#xa0;B. 2001-03</translation>
    </message>
    <message>
        <source>Year, month and day, as 2001-03-01</source>
        <translation>Jahr, Monat und Tag, z.&#xa0;B. 2001-03-01</translation>
    </message>
    <message>
        <source>C&amp;heck boxes</source>
        <translation>An&amp;kreuzfelder</translation>
    </message>
    <message>
        <source>1 and 0</source>
        <translation>1 und 0</translation>
    </message>
    <message>
        <source>TRUE and FALSE</source>
        <translation>TRUE und FALSE</translation>
    </message>
    <message>
        <source>Y and N</source>
        <translation>Y und N</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Gruppen</translation>
    </message>
    <message>
        <source>No column</source>
        <translation>Keine Spalte</translation>
    </message>
    <message>
        <source>A column for each group</source>
        <translation>Eine Spalte für jede Gruppe</translation>
    </message>
    <message>
        <source>One column, names separated by:</source>
        <translation>Eine Spalte, Namen getrennt durch:</translation>
    </message>
    <message>
        <source>Text between the names of groups</source>
        <translation>Text zwischen den Namen der Gruppen</translation>
    </message>
    <message>
        <source>&amp;ISBN</source>
        <translation>&amp;ISBN</translation>
    </message>
    <message>
        <source>One column</source>
        <translation>Eine Spalte</translation>
    </message>
    <message>
        <source>Two columns, for 10 and 13 digits</source>
        <translation>Zwei Spalten, für 10 und 13 Stellen</translation>
    </message>
    <message>
        <source>&amp;Line breaks in texts</source>
        <translation>&amp;Zeilenumbrüche in Texten</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Beibehalten</translation>
    </message>
    <message>
        <source>Replaced by a space</source>
        <translation>Durch ein Leerzeichen ersetzt</translation>
    </message>
    <message>
        <source>Written as \n</source>
        <translation>Als \n geschrieben</translation>
    </message>
    <message>
        <source>&amp;Preview:</source>
        <translation>&amp;Vorschau:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>The first lines of the file as they will be.</source>
        <translation>Die ersten Zeilen der Datei, wie sie geschrieben werden.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>&amp;Alle Bücher (%1)</translation>
    </message>
    <message>
        <source>&amp;Displayed books (%1)</source>
        <translation>Angezeigte &amp;Bücher (%1)</translation>
    </message>
</context>
<context>
    <name>ExportOptions</name>
    <message>
        <source>Export XML</source>
        <translation>XML exportieren</translation>
    </message>
    <message>
        <source>Books</source>
        <translation>Bücher</translation>
    </message>
    <message>
        <source>All books</source>
        <translation>Alle Bücher</translation>
    </message>
    <message>
        <source>Displayed books</source>
        <translation>Angezeigte Bücher</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; already exists.

Do you want to replace it?</source>
        <translation>„%1“ existiert bereits.

Möchten Sie die Datei ersetzen?</translation>
    </message>
</context>
<context>
    <name>FileReading</name>
    <message>
        <source>Not a plain file</source>
        <translation>Keine gewöhnliche Datei</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Filter field</source>
        <translation>Filterfeld</translation>
    </message>
    <message>
        <source>Comparison of dates</source>
        <translation>Datumsvergleich</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Check mark</source>
        <translation>Häkchen</translation>
    </message>
    <message>
        <source>Comparison of numbers</source>
        <translation>Zahlenvergleich</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Bewertung</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
</context>
<context>
    <name>GroupManager</name>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>The guide is not installed.</source>
        <translation>Das Handbuch ist nicht installiert.</translation>
    </message>
    <message>
        <source>No program of this desktop shows the guide. It is at %1</source>
        <translation>Kein Programm dieser Arbeitsumgebung zeigt das Handbuch an. Es befindet sich hier: %1</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Problem melden</translation>
    </message>
    <message>
        <source>The versions are on the clipboard</source>
        <translation>Die Versionen sind in der Zwischenablage</translation>
    </message>
    <message>
        <source>Paste them into your report, and write what you did, what you expected and what happened instead. Nothing of your books is among them.</source>
        <translation>Fügen Sie sie in Ihre Meldung ein und schreiben Sie, was Sie getan haben, was Sie erwartet haben und was stattdessen geschehen ist. Von Ihren Büchern ist nichts darunter.</translation>
    </message>
    <message>
        <source>About Tomely</source>
        <translation>Über Tomely</translation>
    </message>
    <message>
        <source>Tomely %1</source>
        <translation>Tomely %1</translation>
    </message>
    <message>
        <source>A catalogue of the books you own.

Free software under the MIT licence, built with Qt %1, Expat and Hunspell.</source>
        <translation>Ein Katalog Ihrer eigenen Bücher.

Freie Software unter der MIT-Lizenz, erstellt mit Qt %1, Expat und Hunspell.</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versionen</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New Collection</source>
        <translation>&amp;Neue Sammlung</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>Re&amp;vert to Saved</source>
        <translation>Auf gespeicherten S&amp;tand zurücksetzen</translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Tomely</source>
        <translation>Ü&amp;ber Tomely</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>&amp;Report a Problem…</source>
        <translation>&amp;Problem melden…</translation>
    </message>
</context>
<context>
    <name>Months</name>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>March</source>
        <translation>März</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezember</translation>
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
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Start-up</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>&amp;Open this collection when Tomely starts</source>
        <translation>Diese Sammlung beim Start von Tomely ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Collection to open</source>
        <translation>Zu öffnende Sammlung</translation>
    </message>
    <message>
        <source>No collection chosen</source>
        <translation>Keine Sammlung ausgewählt</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>Aus&amp;wählen…</translation>
    </message>
    <message>
        <source>Choose collection to open</source>
        <translation>Zu öffnende Sammlung auswählen</translation>
    </message>
    <message>
        <source>Without one, Tomely starts with a new, untitled collection.</source>
        <translation>Ohne Sammlung startet Tomely mit einer neuen, unbenannten.</translation>
    </message>
    <message>
        <source>New books</source>
        <translation>Neue Bücher</translation>
    </message>
    <message>
        <source>Set &amp;First read to this month</source>
        <translation>„&amp;Erstmals gelesen“ auf diesen Monat setzen</translation>
    </message>
    <message>
        <source>Set &amp;Last read to this month</source>
        <translation>„&amp;Zuletzt gelesen“ auf diesen Monat setzen</translation>
    </message>
    <message>
        <source>Set Purchased to this &amp;month</source>
        <translation>„Gekauft“ auf diesen &amp;Monat setzen</translation>
    </message>
    <message>
        <source>Mark as &amp;read</source>
        <translation>Als &amp;gelesen markieren</translation>
    </message>
    <message>
        <source>Start in the &amp;ISBN field</source>
        <translation>Im &amp;ISBN-Feld beginnen</translation>
    </message>
    <message>
        <source>Open editors on the Custom &amp;tab</source>
        <translation>Buchfenster auf dem Rei&amp;ter „Eigene Felder“ öffnen</translation>
    </message>
    <message>
        <source>Of every book; a new one then does not start in the ISBN field.</source>
        <translation>Bei jedem Buch; ein neues beginnt dann nicht im ISBN-Feld.</translation>
    </message>
    <message>
        <source>Look-up and pictures</source>
        <translation>Nachschlagen und Bilder</translation>
    </message>
    <message>
        <source>Do &amp;not look a book up when its ISBN changes</source>
        <translation>Buch bei geänderter ISBN &amp;nicht nachschlagen</translation>
    </message>
    <message>
        <source>Look Up… in the editor still does.</source>
        <translation>„Nachschlagen…“ im Buchfenster tut es weiterhin.</translation>
    </message>
    <message>
        <source>Take only the first of several aut&amp;hors</source>
        <translation>Von mehreren Aut&amp;oren nur den ersten übernehmen</translation>
    </message>
    <message>
        <source>Do not fetch co&amp;vers</source>
        <translation>Keine Titel&amp;bilder herunterladen</translation>
    </message>
    <message>
        <source>Ask the &amp;second source too</source>
        <translation>A&amp;uch die zweite Quelle abfragen</translation>
    </message>
    <message>
        <source>For what the first lacks. It needs a host of book pages below.</source>
        <translation>Für das, was der ersten fehlt. Dazu muss unten ein Host für Buchseiten stehen.</translation>
    </message>
    <message>
        <source>Scale &amp;down new pictures to the size of their place</source>
        <translation>Neue Bilder auf die Größe ihres Platzes ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Keeps the file small, but the full size is not stored.</source>
        <translation>Hält die Datei klein, aber die volle Größe wird nicht gespeichert.</translation>
    </message>
    <message>
        <source>Picture &amp;quality:</source>
        <translation>Bild&amp;qualität:</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>Of new pictures: 1 makes the smallest files, 10 the best pictures.</source>
        <translation>Bei neuen Bildern: 1 ergibt die kleinsten Dateien, 10 die besten Bilder.</translation>
    </message>
    <message>
        <source>Sources of look-ups</source>
        <translation>Quellen zum Nachschlagen</translation>
    </message>
    <message>
        <source>Book id&amp;entifiers:</source>
        <translation>Bu&amp;chkennungen:</translation>
    </message>
    <message>
        <source>&amp;Book records:</source>
        <translation>Buch&amp;datensätze:</translation>
    </message>
    <message>
        <source>Book &amp;pages:</source>
        <translation>Buch&amp;seiten:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine Angabe</translation>
    </message>
    <message>
        <source>Service &amp;key:</source>
        <translation>Dienstsch&amp;lüssel:</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>PrintPreview</name>
    <message>
        <source>Print Preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>&amp;Seite:</translation>
    </message>
    <message>
        <source>of 1</source>
        <translation>von 1</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>Vor&amp;herige</translation>
    </message>
    <message>
        <source>Previous page (Page Up)</source>
        <translation>Vorherige Seite (Bild auf)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nächste</translation>
    </message>
    <message>
        <source>Next page (Page Down)</source>
        <translation>Nächste Seite (Bild ab)</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>A&amp;usrichtung:</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>&amp;Zoom:</source>
        <translation>&amp;Zoom:</translation>
    </message>
    <message>
        <source>Whole Page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Page Width</source>
        <translation>Seitenbreite</translation>
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
        <translation>Seite</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Sch&amp;ließen</translation>
    </message>
</context>
<context>
    <name>TomelyDelegate</name>
    <message>
        <source>You will be prompted to select your default file.

This is only required once.</source>
        <translation>Sie werden nun aufgefordert, Ihre Standarddatei auszuwählen.

Dies ist nur einmal erforderlich.</translation>
    </message>
    <message>
        <source>Change default file to selected file?</source>
        <translation>Die ausgewählte Datei als Standarddatei verwenden?</translation>
    </message>
</context>
<context>
    <name>ToolbarItems</name>
    <message>
        <source>Add Book</source>
        <translation>Buch hinzufügen</translation>
    </message>
    <message>
        <source>Edit Book</source>
        <translation>Buch bearbeiten</translation>
    </message>
    <message>
        <source>Delete Book</source>
        <translation>Buch löschen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Add Group</source>
        <translation>Neue Gruppe</translation>
    </message>
    <message>
        <source>Delete Group</source>
        <translation>Gruppe löschen</translation>
    </message>
    <message>
        <source>Author &amp; Title</source>
        <translation>Autor und Titel</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Flexible Space</source>
        <translation>Flexibler Zwischenraum</translation>
    </message>
    <message>
        <source>Customise</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Zwischenraum</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Trennlinie</translation>
    </message>
</context>
<context>
    <name>WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
</context>
<context>
    <name>XmlExport</name>
    <message>
        <source>There is not enough memory</source>
        <translation>Es ist nicht genügend Speicher verfügbar</translation>
    </message>
</context>
<context>
    <name>XmlImport</name>
    <message>
        <source>The collection takes no more books</source>
        <translation>Die Sammlung kann keine weiteren Bücher aufnehmen</translation>
    </message>
    <message>
        <source>not an XML file that can be read: %1</source>
        <translation>keine lesbare XML-Datei: %1</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>Es ist nicht genügend Speicher verfügbar</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A catalogue of the books you own.</source>
        <translation>Ein Katalog Ihrer eigenen Bücher.</translation>
    </message>
    <message>
        <source>Collections to open; the default collection without any.</source>
        <translation>Zu öffnende Sammlungen; ohne Angabe die Standardsammlung.</translation>
    </message>
    <message>
        <source>Write a picture of the first window to FILE, print its status line and quit.</source>
        <translation>Ein Bild des ersten Fensters in FILE schreiben, dessen Statuszeile ausgeben und beenden.</translation>
    </message>
    <message>
        <source>Tomely is running already but is busy at the moment. It opens your collections as soon as it is ready.</source>
        <translation>Tomely läuft bereits, ist aber gerade beschäftigt. Ihre Sammlungen werden geöffnet, sobald es bereit ist.</translation>
    </message>
</context>
<context>
    <name>tomely::BookCommands</name>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Möchten Sie „%1“ wirklich löschen?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete %1 books?</source>
        <translation>Möchten Sie wirklich %1 Bücher löschen?</translation>
    </message>
    <message>
        <source>Remove images from all books?</source>
        <translation>Bilder aus allen Büchern entfernen?</translation>
    </message>
    <message>
        <source>Removing pictures…</source>
        <translation>Bilder werden entfernt…</translation>
    </message>
    <message>
        <source>Scale all images to the book entry display size?</source>
        <translation>Alle Bilder auf die Anzeigegröße im Buchfenster skalieren?</translation>
    </message>
    <message>
        <source>Scaling pictures…</source>
        <translation>Bilder werden skaliert…</translation>
    </message>
</context>
<context>
    <name>tomely::BookEntryWindowController</name>
    <message>
        <source>%1 - %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1 - New Entry</source>
        <translation>%1 – Neuer Eintrag</translation>
    </message>
    <message>
        <source>Listened To</source>
        <translation>Gehört</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Gelesen</translation>
    </message>
    <message>
        <source>This book has no title yet and cannot be saved.

Do you want to discard it?</source>
        <translation>Dieses Buch hat noch keinen Titel und kann nicht gespeichert werden.

Möchten Sie es verwerfen?</translation>
    </message>
    <message>
        <source>Do you want to save the changes to the book &apos;%1&apos;?</source>
        <translation>Möchten Sie die Änderungen am Buch „%1“ speichern?</translation>
    </message>
</context>
<context>
    <name>tomely::BookExchange</name>
    <message>
        <source>XML Files</source>
        <translation>XML-Dateien</translation>
    </message>
    <message>
        <source>CSV Files</source>
        <translation>CSV-Dateien</translation>
    </message>
    <message>
        <source>Exporting books…</source>
        <translation>Bücher werden exportiert…</translation>
    </message>
    <message>
        <source>Importing books…</source>
        <translation>Bücher werden importiert…</translation>
    </message>
</context>
<context>
    <name>tomely::BookListDocument</name>
    <message>
        <source>Tomely cannot open files from newer versions.</source>
        <translation>Tomely kann keine Dateien aus neueren Versionen öffnen.</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>beschädigt: %1</translation>
    </message>
    <message>
        <source>not a collection file</source>
        <translation>keine Sammlungsdatei</translation>
    </message>
    <message>
        <source>Open this file when Tomely starts?

You may change this in Preferences at any time.</source>
        <translation>Diese Datei beim Start von Tomely öffnen?

Sie können dies jederzeit in den Einstellungen ändern.</translation>
    </message>
</context>
<context>
    <name>tomely::BookListWindowController</name>
    <message>
        <source>%1 of %2 displayed</source>
        <translation>%1 von %2 angezeigt</translation>
    </message>
</context>
<context>
    <name>tomely::BookPrinting</name>
    <message>
        <source>&apos;%1&apos; could not be printed.

%2</source>
        <translation>„%1“ konnte nicht gedruckt werden.

%2</translation>
    </message>
    <message>
        <source>The printer does not take the pages.</source>
        <translation>Der Drucker nimmt die Seiten nicht an.</translation>
    </message>
    <message>
        <source>The list has none of the chosen pages.</source>
        <translation>Die Liste enthält keine der ausgewählten Seiten.</translation>
    </message>
    <message>
        <source>Printing &apos;%1&apos;…</source>
        <translation>„%1“ wird gedruckt…</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>Es ist nicht genügend Speicher verfügbar</translation>
    </message>
</context>
<context>
    <name>tomely::BookTableModel</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
</context>
<context>
    <name>tomely::CommandActions</name>
    <message>
        <source>Add to &amp;Group</source>
        <translation>Zu &amp;Gruppe hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Book</source>
        <translation>B&amp;uch</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Gruppe</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>No Groups</source>
        <translation>Keine Gruppen</translation>
    </message>
</context>
<context>
    <name>tomely::CommandToolbar</name>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>&amp;Icon and Text</source>
        <translation>&amp;Symbole und Text</translation>
    </message>
    <message>
        <source>Icon &amp;Only</source>
        <translation>&amp;Nur Symbole</translation>
    </message>
    <message>
        <source>Te&amp;xt Only</source>
        <translation>Nur &amp;Text</translation>
    </message>
    <message>
        <source>More commands</source>
        <translation>Weitere Befehle</translation>
    </message>
</context>
<context>
    <name>tomely::Document</name>
    <message>
        <source>There is not enough memory</source>
        <translation>Es ist nicht genügend Speicher verfügbar</translation>
    </message>
</context>
<context>
    <name>tomely::DocumentController</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Unbenannt %1</translation>
    </message>
    <message>
        <source>Opening &apos;%1&apos;…</source>
        <translation>„%1“ wird geöffnet…</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be opened.

%2</source>
        <translation>Die Datei „%1“ konnte nicht geöffnet werden.

%2</translation>
    </message>
    <message>
        <source>Saving &apos;%1&apos;…</source>
        <translation>„%1“ wird gespeichert…</translation>
    </message>
    <message>
        <source>&apos;%1&apos; could not be saved.

%2</source>
        <translation>„%1“ konnte nicht gespeichert werden.

%2</translation>
    </message>
    <message>
        <source>The file of &apos;%1&apos; was changed by another program since you opened it.

Do you want to replace it with what you have here? What the other program wrote will be lost.</source>
        <translation>Die Datei von „%1“ wurde von einem anderen Programm geändert, seit Sie sie geöffnet haben.

Möchten Sie sie durch Ihren Stand hier ersetzen? Was das andere Programm geschrieben hat, geht dabei verloren.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is open in another window. Choose another name.</source>
        <translation>„%1“ ist in einem anderen Fenster geöffnet. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>Do you want to go back to the saved version of &apos;%1&apos;?

Your changes since will be lost.</source>
        <translation>Möchten Sie „%1“ auf den gespeicherten Stand zurücksetzen?

Ihre seitherigen Änderungen gehen dabei verloren.</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Do you want to save the changes to &apos;%1&apos;?</source>
        <translation>Möchten Sie die Änderungen an „%1“ speichern?</translation>
    </message>
</context>
<context>
    <name>tomely::DraggableImageView</name>
    <message>
        <source>Drop or paste a picture here, or press Return to choose a file.</source>
        <translation>Ziehen Sie ein Bild hierher, fügen Sie es ein oder drücken Sie die Eingabetaste, um eine Datei auszuwählen.</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <translation>%1 mal %2 Pixel</translation>
    </message>
    <message>
        <source>This is not a picture that Tomely can read.</source>
        <translation>Dieses Bild kann Tomely nicht lesen.</translation>
    </message>
    <message>
        <source>Choose &amp;Picture…</source>
        <translation>&amp;Bild auswählen…</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Pas&amp;te</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>This picture is damaged</source>
        <translation>Dieses Bild ist beschädigt</translation>
    </message>
    <message>
        <source>Drop a picture here</source>
        <translation>Bild hierher ziehen</translation>
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
        <translation>Zum Umbenennen doppelklicken</translation>
    </message>
</context>
<context>
    <name>tomely::EmptyList</name>
    <message>
        <source>&amp;Add the First Book</source>
        <translation>&amp;Erstes Buch hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Clear Filter</source>
        <translation>Filter &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>There are no books in this collection yet.</source>
        <translation>Diese Sammlung enthält noch keine Bücher.</translation>
    </message>
    <message>
        <source>There are no books in this group.</source>
        <translation>Diese Gruppe enthält keine Bücher.</translation>
    </message>
    <message>
        <source>No books match the filter.</source>
        <translation>Kein Buch entspricht dem Filter.</translation>
    </message>
</context>
<context>
    <name>tomely::FilterBar</name>
    <message>
        <source>All books</source>
        <translation>Alle Bücher</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Angekreuzt</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Nicht angekreuzt</translation>
    </message>
    <message>
        <source>With pictures</source>
        <translation>Mit Bildern</translation>
    </message>
    <message>
        <source>Without pictures</source>
        <translation>Ohne Bilder</translation>
    </message>
    <message>
        <source>In a group</source>
        <translation>In einer Gruppe</translation>
    </message>
    <message>
        <source>In no group</source>
        <translation>In keiner Gruppe</translation>
    </message>
    <message>
        <source>is</source>
        <translation>ist</translation>
    </message>
    <message>
        <source>is not</source>
        <translation>ist nicht</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>kleiner als</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>größer als</translation>
    </message>
    <message>
        <source>before</source>
        <translation>vor</translation>
    </message>
    <message>
        <source>after</source>
        <translation>nach</translation>
    </message>
    <message>
        <source>on or before</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>on or after</source>
        <translation>ab</translation>
    </message>
    <message>
        <source>Any month</source>
        <translation>Beliebiger Monat</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search %1</source>
        <translation>%1 durchsuchen</translation>
    </message>
    <message>
        <source>Choose what to search</source>
        <translation>Suchfeld auswählen</translation>
    </message>
    <message>
        <source>Choose what to search: %1</source>
        <translation>Suchfeld auswählen: %1</translation>
    </message>
</context>
<context>
    <name>tomely::GroupCommands</name>
    <message>
        <source>Are you sure you want to delete group &apos;%1&apos;?</source>
        <translation>Möchten Sie die Gruppe „%1“ wirklich löschen?</translation>
    </message>
    <message>
        <source>Remove selected book(s) from group?</source>
        <translation>Ausgewählte Bücher aus der Gruppe entfernen?</translation>
    </message>
</context>
<context>
    <name>tomely::GroupManagerController</name>
    <message>
        <source>Tick the groups that the book is in.</source>
        <translation>Kreuzen Sie die Gruppen an, zu denen das Buch gehört.</translation>
    </message>
    <message>
        <source>The groups of this collection.</source>
        <translation>Die Gruppen dieser Sammlung.</translation>
    </message>
</context>
<context>
    <name>tomely::GroupTableModel</name>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
</context>
<context>
    <name>tomely::HeaderMenu</name>
    <message>
        <source>&amp;Columns…</source>
        <translation>&amp;Spalten…</translation>
    </message>
    <message>
        <source>&amp;Hide This Column</source>
        <translation>Diese Spalte &amp;ausblenden</translation>
    </message>
    <message>
        <source>&amp;Hide &apos;%1&apos;</source>
        <translation>„%1“ &amp;ausblenden</translation>
    </message>
</context>
<context>
    <name>tomely::ImageWells</name>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
</context>
<context>
    <name>tomely::LookupWorkflow</name>
    <message>
        <source>Book lookup did not find the requested book.</source>
        <translation>Das gesuchte Buch wurde beim Nachschlagen nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>tomely::NotesView</name>
    <message>
        <source>No Suggestions</source>
        <translation>Keine Vorschläge</translation>
    </message>
    <message>
        <source>Ignore Spelling</source>
        <translation>Schreibweise ignorieren</translation>
    </message>
</context>
<context>
    <name>tomely::PreferencesController</name>
    <message>
        <source>The preferences could not be written to &apos;%1&apos;. They count until Tomely ends.</source>
        <translation>Die Einstellungen konnten nicht in „%1“ geschrieben werden. Sie gelten, bis Tomely beendet wird.</translation>
    </message>
    <message>
        <source>Leave a field empty for what it shows. A host is a name, with a colon and a port where need be: books.example.org:8443.</source>
        <translation>Lassen Sie ein Feld leer, damit gilt, was es anzeigt. Ein Host ist ein Name, bei Bedarf mit Doppelpunkt und Port: books.example.org:8443.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host, so look-ups ask nobody there. Type a name like books.example.org, with a colon and a port where need be.</source>
        <translation>„%1“ ist kein Host, daher wird dort nicht nachgeschlagen. Geben Sie einen Namen wie books.example.org ein, bei Bedarf mit Doppelpunkt und Port.</translation>
    </message>
</context>
<context>
    <name>tomely::PrintPreview</name>
    <message>
        <source>of %L1</source>
        <translation>von %L1</translation>
    </message>
</context>
<context>
    <name>tomely::StartWindow</name>
    <message>
        <source>A catalogue of the books you own</source>
        <translation>Ein Katalog Ihrer eigenen Bücher</translation>
    </message>
    <message>
        <source>&amp;New Collection</source>
        <translation>&amp;Neue Sammlung</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Recent collections</source>
        <translation>&amp;Zuletzt geöffnete Sammlungen</translation>
    </message>
    <message>
        <source>Recent collections</source>
        <translation>Zuletzt geöffnete Sammlungen</translation>
    </message>
</context>
</TS>
