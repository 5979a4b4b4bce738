<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About</source>
        <translation>Über Grisal</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Lumio Grisal is a
black and white
imaging toolkit
with focus on speed
and comfort.</source>
        <translation>Lumio Grisal ist ein
Werkzeug für
Schwarzweißbilder,
auf Tempo und
Komfort ausgelegt.</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>The library whose licence is shown</source>
        <translation>Die Bibliothek, deren Lizenz angezeigt wird</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Version: %1</translation>
    </message>
</context>
<context>
    <name>CurveFrame</name>
    <message>
        <source>Points: %1, none selected</source>
        <translation>Punkte: %1, keiner ausgewählt</translation>
    </message>
    <message>
        <source>Point %1 of %2: %3 % from the left, %4 % from the bottom</source>
        <translation>Punkt %1 von %2: %3&#xa0;% von links, %4&#xa0;% von unten</translation>
    </message>
    <message>
        <source>In %1, out %2</source>
        <translation>Eingang %1, Ausgang %2</translation>
    </message>
    <message>
        <source>Tone %1, strength %2 %</source>
        <translation>Tonwert %1, Stärke %2&#xa0;%</translation>
    </message>
</context>
<context>
    <name>Curves</name>
    <message>
        <source>Presets:</source>
        <translation>Vorgaben:</translation>
    </message>
    <message>
        <source>There are no presets for curves yet</source>
        <translation>Für Kurven gibt es noch keine Vorgaben</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Back to the straight curve, which changes nothing</source>
        <translation>Zurück zur geraden Kurve, die nichts verändert</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>The greys after the curve</source>
        <translation>Die Grautöne nach der Kurve</translation>
    </message>
    <message>
        <source>Black at the bottom</source>
        <translation>Schwarz unten</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; background:white; color:black; white-space:nowrap;&quot;&gt;The greys after the curve, black at the bottom&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; background:white; color:black; white-space:nowrap;&quot;&gt;Die Grautöne nach der Kurve, Schwarz unten&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Click to select the point above or below, or to add one. Drag to move it. Delete removes the orange point; the two ends stay.</source>
        <translation>Ein Klick wählt den Punkt darüber oder darunter aus oder fügt einen hinzu. Ziehen bewegt ihn. Entf löscht den orangefarbenen Punkt; die beiden Enden bleiben.</translation>
    </message>
    <message>
        <source>Tone curve</source>
        <translation>Tonwertkurve</translation>
    </message>
    <message>
        <source>Page Up and Page Down select the point to the left or to the right, arrow keys move it. Insert adds a point to its right, Delete removes it; the two ends stay.</source>
        <translation>Bild auf und Bild ab wählen den Punkt links oder rechts aus, die Pfeiltasten bewegen ihn. Einfg fügt rechts davon einen Punkt hinzu, Entf löscht ihn; die beiden Enden bleiben.</translation>
    </message>
    <message>
        <source>The greys before the curve</source>
        <translation>Die Grautöne vor der Kurve</translation>
    </message>
    <message>
        <source>Black at the left</source>
        <translation>Schwarz links</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; background:white; color:black; white-space:nowrap;&quot;&gt;The greys before the curve, black at the left&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; background:white; color:black; white-space:nowrap;&quot;&gt;Die Grautöne vor der Kurve, Schwarz links&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Kurventyp</translation>
    </message>
    <message>
        <source>Straight lines between the points</source>
        <translation>Gerade Linien zwischen den Punkten</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>A smooth curve through the points</source>
        <translation>Eine glatte Kurve durch die Punkte</translation>
    </message>
    <message>
        <source>BSpline</source>
        <translation>B-Spline</translation>
    </message>
</context>
<context>
    <name>FileDealer</name>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Bild öffnen</translation>
    </message>
    <message>
        <source>Save image</source>
        <translation>Bild speichern</translation>
    </message>
</context>
<context>
    <name>Grain</name>
    <message>
        <source>Presets:</source>
        <translation>Vorgaben:</translation>
    </message>
    <message>
        <source>There are no presets for film grain yet</source>
        <translation>Für Filmkorn gibt es noch keine Vorgaben</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Back to grain in the middle greys, blurred by 1.5 pixels</source>
        <translation>Zurück zu Korn in den mittleren Grautönen, um 1,5 Pixel weichgezeichnet</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>How strong the grain is, from the blacks at the left to the whites at the right. Click to select the point above or below, or to add one. Drag to move it. Delete removes the orange point; the two ends stay.</source>
        <translation>Wie stark das Korn ist, vom Schwarz links bis zum Weiß rechts. Ein Klick wählt den Punkt darüber oder darunter aus oder fügt einen hinzu. Ziehen bewegt ihn. Entf löscht den orangefarbenen Punkt; die beiden Enden bleiben.</translation>
    </message>
    <message>
        <source>Strength of the grain</source>
        <translation>Stärke des Korns</translation>
    </message>
    <message>
        <source>How strong the grain is, from the blacks at the left to the whites at the right. Page Up and Page Down select the point to the left or to the right, arrow keys move it. Insert adds a point to its right, Delete removes it; the two ends stay.</source>
        <translation>Wie stark das Korn ist, vom Schwarz links bis zum Weiß rechts. Bild auf und Bild ab wählen den Punkt links oder rechts aus, die Pfeiltasten bewegen ihn. Einfg fügt rechts davon einen Punkt hinzu, Entf löscht ihn; die beiden Enden bleiben.</translation>
    </message>
    <message>
        <source>The grain on the greys from black to white</source>
        <translation>Das Korn auf den Grautönen von Schwarz bis Weiß</translation>
    </message>
    <message>
        <source>Preview of the grain</source>
        <translation>Vorschau des Korns</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Unschärfe</translation>
    </message>
    <message>
        <source>How coarse the grain is, in pixels</source>
        <translation>Wie grob das Korn ist, in Pixeln</translation>
    </message>
</context>
<context>
    <name>GrainPreview</name>
    <message>
        <source>Blurred by %1 pixels</source>
        <translation>Um %L1 Pixel weichgezeichnet</translation>
    </message>
    <message>
        <source>%1, %2 % strong in the blacks, %3 % in the middle greys, %4 % in the whites</source>
        <translation>%1, Stärke %2&#xa0;% im Schwarz, %3&#xa0;% in den mittleren Grautönen, %4&#xa0;% im Weiß</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Arrow keys move about in the picture, plus and minus zoom. The space bar, while it is held, shows the picture without the filters.</source>
        <translation>Die Pfeiltasten verschieben den Ausschnitt, Plus und Minus vergrößern und verkleinern. Die Leertaste zeigt, solange sie gedrückt ist, das Bild ohne die Filter.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>1. Mixer</source>
        <translation>1. Mixer</translation>
    </message>
    <message>
        <source>Channel Mixer</source>
        <translation>Kanalmixer</translation>
    </message>
    <message>
        <source>2. Curves</source>
        <translation>2. Kurven</translation>
    </message>
    <message>
        <source>Edit mapping function</source>
        <translation>Tonwertkurve bearbeiten</translation>
    </message>
    <message>
        <source>3. Sharpen</source>
        <translation>3. Schärfen</translation>
    </message>
    <message>
        <source>Accentuate Details</source>
        <translation>Details betonen</translation>
    </message>
    <message>
        <source>4. Vignette</source>
        <translation>4. Vignette</translation>
    </message>
    <message>
        <source>Darken Borders</source>
        <translation>Ränder abdunkeln</translation>
    </message>
    <message>
        <source>5. Film Grain</source>
        <translation>5. Filmkorn</translation>
    </message>
    <message>
        <source>Simulate High ISO Film Grain</source>
        <translation>Korn hochempfindlicher Filme nachbilden</translation>
    </message>
    <message>
        <source>6. Split Tone</source>
        <translation>6. Tönung</translation>
    </message>
    <message>
        <source>Apply Color Tones</source>
        <translation>Lichter und Schatten tönen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über Grisal</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Fit on Width</source>
        <translation>In die Breite einpassen</translation>
    </message>
    <message>
        <source>Fit on Height</source>
        <translation>In die Höhe einpassen</translation>
    </message>
    <message>
        <source>Actual Pixels</source>
        <translation>Tatsächliche Pixel</translation>
    </message>
    <message>
        <source>Zoom to 1:1</source>
        <translation>Auf 1:1 zoomen</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>The graphics driver offers only OpenGL %1.</source>
        <translation>Der Grafiktreiber bietet nur OpenGL %1.</translation>
    </message>
    <message>
        <source>The graphics driver does not start OpenGL.</source>
        <translation>Der Grafiktreiber startet OpenGL nicht.</translation>
    </message>
    <message>
        <source>There is no OpenGL on this display.</source>
        <translation>Auf diesem Bildschirm gibt es kein OpenGL.</translation>
    </message>
    <message>
        <source>Some metadata in %1 could not be read</source>
        <translation>Einige Metadaten in %1 konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>Some metadata could not be saved</source>
        <translation>Einige Metadaten konnten nicht gespeichert werden</translation>
    </message>
    <message>
        <source>The log %1 cannot be written.</source>
        <translation>In das Protokoll %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The settings cannot be used, because %1 is too large or is not a regular file.</source>
        <translation>Die Einstellungen können nicht verwendet werden, weil %1 zu groß oder keine gewöhnliche Datei ist.</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>Der Datenträger ist voll</translation>
    </message>
    <message>
        <source>the name has to end in .jpg, .jpeg, .png, .tif or .tiff</source>
        <translation>Der Name muss auf .jpg, .jpeg, .png, .tif oder .tiff enden</translation>
    </message>
    <message>
        <source>not all of the picture could be written</source>
        <translation>Das Bild konnte nicht vollständig geschrieben werden</translation>
    </message>
    <message>
        <source>%1 cannot be read after it was written</source>
        <translation>%1 kann nach dem Schreiben nicht gelesen werden</translation>
    </message>
    <message>
        <source>the folder cannot be written to (%1)</source>
        <translation>In den Ordner kann nicht geschrieben werden (%1)</translation>
    </message>
    <message>
        <source>the name belongs to something other than a file</source>
        <translation>Der Name gehört zu etwas anderem als einer Datei</translation>
    </message>
    <message>
        <source>the file is write-protected (%1)</source>
        <translation>Die Datei ist schreibgeschützt (%1)</translation>
    </message>
    <message>
        <source>the file cannot be completed (%1)</source>
        <translation>Die Datei kann nicht fertiggestellt werden (%1)</translation>
    </message>
    <message>
        <source>the old file cannot be replaced (%1)</source>
        <translation>Die alte Datei kann nicht ersetzt werden (%1)</translation>
    </message>
    <message>
        <source>an image cannot have %1 pixels</source>
        <translation>Ein Bild kann keine %1 Pixel haben</translation>
    </message>
    <message>
        <source>the image is not valid</source>
        <translation>Das Bild ist ungültig</translation>
    </message>
    <message>
        <source>the pixels cannot be accessed</source>
        <translation>Auf die Pixel kann nicht zugegriffen werden</translation>
    </message>
    <message>
        <source>No picture in %1</source>
        <translation>Kein Bild in %1</translation>
    </message>
    <message>
        <source>the file cannot be reached (%1)</source>
        <translation>Die Datei ist nicht erreichbar (%1)</translation>
    </message>
    <message>
        <source>%1 contains texts that are too long</source>
        <translation>%1 enthält zu lange Texte</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>%1 kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>No JPEG, PNG or TIFF picture in %1</source>
        <translation>Kein JPEG-, PNG- oder TIFF-Bild in %1</translation>
    </message>
    <message>
        <source>%1 is too small a file for its number of pixels</source>
        <translation>%1 ist eine zu kleine Datei für die Zahl ihrer Pixel</translation>
    </message>
    <message>
        <source>%1 is too large a file for its number of pixels</source>
        <translation>%1 ist eine zu große Datei für die Zahl ihrer Pixel</translation>
    </message>
</context>
<context>
    <name>Mixer</name>
    <message>
        <source>Presets:</source>
        <translation>Vorgaben:</translation>
    </message>
    <message>
        <source>Looks named after black-and-white film stocks</source>
        <translation>Bildstile, nach Schwarzweißfilmen benannt</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Back to the plain average of the channels</source>
        <translation>Zurück zum einfachen Mittelwert der Kanäle</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Click or drag to choose the weights: red upwards, blue to the right, the plain average in the middle. The mouse wheel raises and lowers them all.</source>
        <translation>Klicken oder ziehen Sie, um die Gewichte zu wählen: Rot nach oben, Blau nach rechts, der einfache Mittelwert in der Mitte. Das Mausrad hebt und senkt sie alle.</translation>
    </message>
    <message>
        <source>Colour wheel</source>
        <translation>Farbrad</translation>
    </message>
    <message>
        <source>Arrow keys choose the weights: red upwards, blue to the right, the plain average in the middle. Page Up and Page Down raise and lower them all.</source>
        <translation>Die Pfeiltasten wählen die Gewichte: Rot nach oben, Blau nach rechts, der einfache Mittelwert in der Mitte. Bild auf und Bild ab heben und senken sie alle.</translation>
    </message>
    <message>
        <source>Luma</source>
        <translation>Luma</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; background:white; color:black;&quot;&gt;The sum of the weights: 255 keeps the brightness of the picture&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; background:white; color:black;&quot;&gt;Die Summe der Gewichte: 255 erhält die Helligkeit des Bildes&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Sum of the weights</source>
        <translation>Summe der Gewichte</translation>
    </message>
    <message>
        <source>The sum of the weights: 255 keeps the brightness of the picture</source>
        <translation>Die Summe der Gewichte: 255 erhält die Helligkeit des Bildes</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; color:#ff0000;&quot;&gt;Red&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; color:#ff0000;&quot;&gt;Rot&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Red&apos;s share of the grey. It takes effect with the next change of the luma.</source>
        <translation>Der Anteil von Rot am Grau. Er wird mit der nächsten Änderung der Luma wirksam.</translation>
    </message>
    <message>
        <source>Red weight</source>
        <translation>Gewicht von Rot</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; color:green;&quot;&gt;Green&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; color:green;&quot;&gt;Grün&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Green&apos;s share of the grey. It takes effect with the next change of the luma.</source>
        <translation>Der Anteil von Grün am Grau. Er wird mit der nächsten Änderung der Luma wirksam.</translation>
    </message>
    <message>
        <source>Green weight</source>
        <translation>Gewicht von Grün</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; color:#0000ff;&quot;&gt;Blue&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; color:#0000ff;&quot;&gt;Blau&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Blue&apos;s share of the grey. It takes effect with the next change of the luma.</source>
        <translation>Der Anteil von Blau am Grau. Er wird mit der nächsten Änderung der Luma wirksam.</translation>
    </message>
    <message>
        <source>Blue weight</source>
        <translation>Gewicht von Blau</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Takes effect with the next change of Luma, which shifts all three by the same amount</source>
        <translation>Wird mit der nächsten Änderung der Luma wirksam, die alle drei um denselben Betrag verschiebt</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Remembered from the last pictures</source>
        <translation>Von den letzten Bildern gemerkt</translation>
    </message>
    <message>
        <source>Last directory:</source>
        <translation>Letztes Verzeichnis:</translation>
    </message>
    <message>
        <source>Where the dialogs for opening and saving start</source>
        <translation>Wo die Dialoge zum Öffnen und Speichern beginnen</translation>
    </message>
    <message>
        <source>Last directory</source>
        <translation>Letztes Verzeichnis</translation>
    </message>
    <message>
        <source>None: dialogs start in your home directory</source>
        <translation>Keines: Dialoge beginnen im persönlichen Verzeichnis</translation>
    </message>
    <message>
        <source>Forget the last directory: dialogs start in your home directory again</source>
        <translation>Das letzte Verzeichnis vergessen: Dialoge beginnen wieder in Ihrem persönlichen Verzeichnis</translation>
    </message>
    <message>
        <source>Forget the last directory</source>
        <translation>Das letzte Verzeichnis vergessen</translation>
    </message>
    <message>
        <source>Dialogs start in your home directory again</source>
        <translation>Dialoge beginnen wieder in Ihrem persönlichen Verzeichnis</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Vergessen</translation>
    </message>
    <message>
        <source>Recent images:</source>
        <translation>Letzte Bilder:</translation>
    </message>
    <message>
        <source>The pictures of the menu File, Recent, and those whose files are missing at the moment</source>
        <translation>Die Bilder des Menüs „Datei“, „Zuletzt geöffnet“ und jene, deren Dateien gerade fehlen</translation>
    </message>
    <message>
        <source>Recent images</source>
        <translation>Letzte Bilder</translation>
    </message>
    <message>
        <source>Forget the recent images: the menu File, Recent becomes empty</source>
        <translation>Die letzten Bilder vergessen: Das Menü „Datei“, „Zuletzt geöffnet“ wird leer</translation>
    </message>
    <message>
        <source>Forget the recent images</source>
        <translation>Die letzten Bilder vergessen</translation>
    </message>
    <message>
        <source>The menu File, Recent becomes empty</source>
        <translation>Das Menü „Datei“, „Zuletzt geöffnet“ wird leer</translation>
    </message>
    <message>
        <source>Files of the program</source>
        <translation>Dateien des Programms</translation>
    </message>
    <message>
        <source>Log:</source>
        <translation>Protokoll:</translation>
    </message>
    <message>
        <source>Actions and errors of the program, one per line</source>
        <translation>Aktionen und Fehler des Programms, Zeile für Zeile</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Open the folder of the log</source>
        <translation>Den Ordner des Protokolls öffnen</translation>
    </message>
    <message>
        <source>Shows it in the file manager</source>
        <translation>Zeigt ihn in der Dateiverwaltung</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Einstellungen:</translation>
    </message>
    <message>
        <source>Where the last directory and the recent images are kept</source>
        <translation>Wo das letzte Verzeichnis und die letzten Bilder gespeichert sind</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Open the folder of the settings</source>
        <translation>Den Ordner der Einstellungen öffnen</translation>
    </message>
    <message>
        <source>The settings could not be changed. The log contains the reason.</source>
        <translation>Die Einstellungen konnten nicht geändert werden. Das Protokoll nennt den Grund.</translation>
    </message>
    <message>
        <source>No program was found that opens the folder %1.</source>
        <translation>Es wurde kein Programm gefunden, das den Ordner %1 öffnet.</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>No OpenGL</source>
        <translation>Kein OpenGL</translation>
    </message>
    <message>
        <source>%1
Grisal needs OpenGL 2.1 to show and save pictures. Please install or update the graphics driver and start Grisal again.</source>
        <translation>%1
Grisal braucht OpenGL 2.1, um Bilder anzuzeigen und zu speichern. Bitte installieren oder aktualisieren Sie den Grafiktreiber und starten Sie Grisal neu.</translation>
    </message>
</context>
<context>
    <name>Sharpen</name>
    <message>
        <source>There is no sharpening yet: the button does nothing</source>
        <translation>Das Schärfen ist noch nicht verfügbar: Der Knopf bewirkt nichts</translation>
    </message>
    <message>
        <source>Sharpen Not Yet Available</source>
        <translation>Schärfen noch nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>SplitTone</name>
    <message>
        <source>Presets:</source>
        <translation>Vorgaben:</translation>
    </message>
    <message>
        <source>There are no presets yet</source>
        <translation>Es gibt noch keine Vorgaben</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Back to warm highlights, cool shadows and an even weight</source>
        <translation>Zurück zu warmen Lichtern, kühlen Schatten und gleicher Gewichtung</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Lichter</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; background:white; color:black; white-space:nowrap;&quot;&gt;How light the tint is; it keeps its colour&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; background:white; color:black; white-space:nowrap;&quot;&gt;Wie hell die Tönung ist; ihre Farbe bleibt&lt;/div&gt;</translation>
    </message>
    <message>
        <source>How light the tint is; it keeps its colour</source>
        <translation>Wie hell die Tönung ist; ihre Farbe bleibt</translation>
    </message>
    <message>
        <source>Luma of the highlights</source>
        <translation>Luma der Lichter</translation>
    </message>
    <message>
        <source>Click or drag to choose the tint of the highlights: red upwards, blue to the right, grey in the middle. The mouse wheel makes it lighter or darker.</source>
        <translation>Klicken oder ziehen Sie, um die Tönung der Lichter zu wählen: Rot nach oben, Blau nach rechts, Grau in der Mitte. Das Mausrad macht sie heller oder dunkler.</translation>
    </message>
    <message>
        <source>Colour wheel of the highlights</source>
        <translation>Farbrad der Lichter</translation>
    </message>
    <message>
        <source>Arrow keys choose the tint of the highlights: red upwards, blue to the right, grey in the middle. Page Up and Page Down make it lighter or darker.</source>
        <translation>Die Pfeiltasten wählen die Tönung der Lichter: Rot nach oben, Blau nach rechts, Grau in der Mitte. Bild auf und Bild ab machen sie heller oder dunkler.</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; color:#ff0000;&quot;&gt;Red&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; color:#ff0000;&quot;&gt;Rot&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Red of the highlights. It takes effect with the next change of the weight, a wheel or a luma.</source>
        <translation>Rot der Lichter. Es wird mit der nächsten Änderung der Gewichtung, eines Farbrads oder einer Luma wirksam.</translation>
    </message>
    <message>
        <source>Red of the highlights</source>
        <translation>Rot der Lichter</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; color:green;&quot;&gt;Green&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; color:green;&quot;&gt;Grün&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Green of the highlights. It takes effect with the next change of the weight, a wheel or a luma.</source>
        <translation>Grün der Lichter. Es wird mit der nächsten Änderung der Gewichtung, eines Farbrads oder einer Luma wirksam.</translation>
    </message>
    <message>
        <source>Green of the highlights</source>
        <translation>Grün der Lichter</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; color:#0000ff;&quot;&gt;Blue&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; color:#0000ff;&quot;&gt;Blau&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Blue of the highlights. It takes effect with the next change of the weight, a wheel or a luma.</source>
        <translation>Blau der Lichter. Es wird mit der nächsten Änderung der Gewichtung, eines Farbrads oder einer Luma wirksam.</translation>
    </message>
    <message>
        <source>Blue of the highlights</source>
        <translation>Blau der Lichter</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewichtung</translation>
    </message>
    <message>
        <source>Which tint reaches further: more to the right the highlights&apos;, more to the left the shadows&apos;</source>
        <translation>Welche Tönung weiter reicht: nach rechts die der Lichter, nach links die der Schatten</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Luma of the shadows</source>
        <translation>Luma der Schatten</translation>
    </message>
    <message>
        <source>Click or drag to choose the tint of the shadows: red upwards, blue to the right, grey in the middle. The mouse wheel makes it lighter or darker.</source>
        <translation>Klicken oder ziehen Sie, um die Tönung der Schatten zu wählen: Rot nach oben, Blau nach rechts, Grau in der Mitte. Das Mausrad macht sie heller oder dunkler.</translation>
    </message>
    <message>
        <source>Colour wheel of the shadows</source>
        <translation>Farbrad der Schatten</translation>
    </message>
    <message>
        <source>Arrow keys choose the tint of the shadows: red upwards, blue to the right, grey in the middle. Page Up and Page Down make it lighter or darker.</source>
        <translation>Die Pfeiltasten wählen die Tönung der Schatten: Rot nach oben, Blau nach rechts, Grau in der Mitte. Bild auf und Bild ab machen sie heller oder dunkler.</translation>
    </message>
    <message>
        <source>Red of the shadows. It takes effect with the next change of the weight, a wheel or a luma.</source>
        <translation>Rot der Schatten. Es wird mit der nächsten Änderung der Gewichtung, eines Farbrads oder einer Luma wirksam.</translation>
    </message>
    <message>
        <source>Red of the shadows</source>
        <translation>Rot der Schatten</translation>
    </message>
    <message>
        <source>Green of the shadows. It takes effect with the next change of the weight, a wheel or a luma.</source>
        <translation>Grün der Schatten. Es wird mit der nächsten Änderung der Gewichtung, eines Farbrads oder einer Luma wirksam.</translation>
    </message>
    <message>
        <source>Green of the shadows</source>
        <translation>Grün der Schatten</translation>
    </message>
    <message>
        <source>Blue of the shadows. It takes effect with the next change of the weight, a wheel or a luma.</source>
        <translation>Blau der Schatten. Es wird mit der nächsten Änderung der Gewichtung, eines Farbrads oder einer Luma wirksam.</translation>
    </message>
    <message>
        <source>Blue of the shadows</source>
        <translation>Blau der Schatten</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>Grisal User Guide</source>
        <translation>Grisal-Handbuch</translation>
    </message>
    <message>
        <source>To the list of contents at the top</source>
        <translation>Zum Inhaltsverzeichnis am Anfang</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>To where the last link was followed</source>
        <translation>Dorthin, wo Sie dem letzten Verweis gefolgt sind</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Along the link that was followed before going back</source>
        <translation>Wieder dem Verweis folgen, von dem Sie zurückgekehrt sind</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>What the panels do, shortcuts, files</source>
        <translation>Was die Bedienfelder tun, Tastenkürzel, Dateien</translation>
    </message>
</context>
<context>
    <name>VFrame</name>
    <message>
        <source>Centre %1 % from the left and %2 % from the top, radius %3 %, strength %4 %</source>
        <translation>Mitte %1&#xa0;% von links und %2&#xa0;% von oben, Radius %3&#xa0;%, Stärke %4&#xa0;%</translation>
    </message>
</context>
<context>
    <name>Vignette</name>
    <message>
        <source>Presets:</source>
        <translation>Vorgaben:</translation>
    </message>
    <message>
        <source>There are no presets yet</source>
        <translation>Es gibt noch keine Vorgaben</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Back to a vignette from the middle, of half radius and half strength</source>
        <translation>Zurück zu einer Vignette um die Bildmitte mit halbem Radius und halber Stärke</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Click or drag to choose the centre. The mouse wheel changes the radius, with the Control key held the strength.</source>
        <translation>Klicken oder ziehen Sie, um die Mitte zu wählen. Das Mausrad ändert den Radius, bei gedrückter Strg-Taste die Stärke.</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>Arrow keys move the centre. Page Up and Page Down change the radius, with the Control key held the strength.</source>
        <translation>Die Pfeiltasten bewegen die Mitte. Bild auf und Bild ab ändern den Radius, bei gedrückter Strg-Taste die Stärke.</translation>
    </message>
    <message>
        <source>Where the centre lies, in percent of the picture&apos;s width from the left</source>
        <translation>Wo die Mitte liegt, in Prozent der Bildbreite von links</translation>
    </message>
    <message>
        <source>Centre from the left in percent</source>
        <translation>Mitte von links in Prozent</translation>
    </message>
    <message>
        <source>Where the centre lies, in percent of the picture&apos;s height from the top</source>
        <translation>Wo die Mitte liegt, in Prozent der Bildhöhe von oben</translation>
    </message>
    <message>
        <source>Centre from the top in percent</source>
        <translation>Mitte von oben in Prozent</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>How far from the centre the strength is reached, in percent of the mean of the picture&apos;s width and height</source>
        <translation>In welchem Abstand von der Mitte die Stärke erreicht wird, in Prozent des Mittelwerts von Bildbreite und Bildhöhe</translation>
    </message>
    <message>
        <source>Radius in percent</source>
        <translation>Radius in Prozent</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>How much the picture is darkened at the radius, in percent: 0 leaves it as it is</source>
        <translation>Wie stark das Bild am Radius abgedunkelt wird, in Prozent: 0 lässt es, wie es ist</translation>
    </message>
    <message>
        <source>Strength in percent</source>
        <translation>Stärke in Prozent</translation>
    </message>
    <message>
        <source>Has no effect on the picture yet</source>
        <translation>Wirkt noch nicht auf das Bild</translation>
    </message>
    <message>
        <source>Extra blur</source>
        <translation>Zusätzliche Unschärfe</translation>
    </message>
    <message>
        <source>Extra Blur</source>
        <translation>Zusätzliche Unschärfe</translation>
    </message>
</context>
<context>
    <name>YUVFrame</name>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>%1, level %2: red %3, green %4, blue %5</source>
        <translation>%1, Helligkeit %2: Rot %3, Grün %4, Blau %5</translation>
    </message>
</context>
<context>
    <name>grisal::ui::GLWidget</name>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at %3 %</source>
        <translation>%1 x %2 Pixel bei %3&#xa0;%</translation>
    </message>
    <message>
        <source>%1, without the filters</source>
        <translation>%1, ohne die Filter</translation>
    </message>
</context>
<context>
    <name>grisal::ui::MainWindow</name>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Bild öffnen</translation>
    </message>
    <message>
        <source>Cannot load %1.</source>
        <translation>%1 kann nicht geladen werden.</translation>
    </message>
    <message>
        <source>No filename</source>
        <translation>Kein Dateiname</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>The picture could not be rendered. Nothing was saved; the log contains the reason.</source>
        <translation>Das Bild konnte nicht berechnet werden. Es wurde nichts gespeichert; mehr steht im Protokoll.</translation>
    </message>
    <message>
        <source>File %1 already exists.
 Do you want to replace it?</source>
        <translation>Die Datei %1 ist bereits vorhanden.
 Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Überschreiben?</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>%1 wird geschrieben</translation>
    </message>
    <message>
        <source>Rendering tile %1 of %2</source>
        <translation>Kachel %1 von %2 wird berechnet</translation>
    </message>
    <message>
        <source>Opening and saving it takes up to %1 of memory, but only %2 are free.</source>
        <translation>Zum Öffnen und Speichern sind bis zu %1 Arbeitsspeicher nötig, frei sind nur %2.</translation>
    </message>
    <message>
        <source>%1 opens a picture</source>
        <translation>%1 öffnet ein Bild</translation>
    </message>
    <message>
        <source>Only the first of the %1 pictures was opened</source>
        <translation>Nur das erste der %1 Bilder wurde geöffnet</translation>
    </message>
    <message>
        <source>Cannot save %1: %2</source>
        <translation>%1 kann nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>It is not a file on this computer, or its name is invalid. Please copy the picture to a folder on this computer and open the copy.</source>
        <translation>Es ist keine Datei auf diesem Computer, oder ihr Name ist ungültig. Bitte kopieren Sie das Bild in einen Ordner auf diesem Computer und öffnen Sie die Kopie.</translation>
    </message>
    <message>
        <source>There is no such file. It may have been moved or deleted.</source>
        <translation>Diese Datei gibt es nicht. Vielleicht wurde sie verschoben oder gelöscht.</translation>
    </message>
</context>
<context>
    <name>grisal::ui::StatusBar</name>
    <message>
        <source>The preview of a large picture is smaller than the picture. The file is saved in full size.</source>
        <translation>Die Vorschau eines großen Bildes ist kleiner als das Bild. Die Datei wird in voller Größe gespeichert.</translation>
    </message>
    <message>
        <source>Size on the screen, in percent of the size in the file</source>
        <translation>Größe auf dem Bildschirm in Prozent der Größe in der Datei</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Progress of reading, rendering or writing</source>
        <translation>Fortschritt beim Lesen, Berechnen oder Schreiben</translation>
    </message>
    <message>
        <source>Preview 1:%1</source>
        <translation>Vorschau 1:%1</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
</TS>
