<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About</source>
        <translation>À propos de Grisal</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
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
        <translation>Lumio Grisal est un
outil pour l’image
en noir et blanc,
fait pour la rapidité
et le confort.</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothèque</translation>
    </message>
    <message>
        <source>The library whose licence is shown</source>
        <translation>La bibliothèque dont la licence est affichée</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Version&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>CurveFrame</name>
    <message>
        <source>Points: %1, none selected</source>
        <translation>Points&#xa0;: %1, aucun sélectionné</translation>
    </message>
    <message>
        <source>Point %1 of %2: %3 % from the left, %4 % from the bottom</source>
        <translation>Point %1 sur %2&#xa0;: %3&#xa0;% depuis la gauche, %4&#xa0;% depuis le bas</translation>
    </message>
    <message>
        <source>In %1, out %2</source>
        <translation>Entrée %1, sortie %2</translation>
    </message>
    <message>
        <source>Tone %1, strength %2 %</source>
        <translation>Ton %1, force %2&#xa0;%</translation>
    </message>
</context>
<context>
    <name>Curves</name>
    <message>
        <source>Presets:</source>
        <translation>Préréglages&#xa0;:</translation>
    </message>
    <message>
        <source>There are no presets for curves yet</source>
        <translation>Il n’y a pas encore de préréglages pour les courbes</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Back to the straight curve, which changes nothing</source>
        <translation>Retour à la courbe droite, qui ne change rien</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>The greys after the curve</source>
        <translation>Les gris après la courbe</translation>
    </message>
    <message>
        <source>Black at the bottom</source>
        <translation>Le noir en bas</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; background:white; color:black; white-space:nowrap;&quot;&gt;The greys after the curve, black at the bottom&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; background:white; color:black; white-space:nowrap;&quot;&gt;Les gris après la courbe, le noir en bas&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Click to select the point above or below, or to add one. Drag to move it. Delete removes the orange point; the two ends stay.</source>
        <translation>Cliquez pour sélectionner le point au-dessus ou au-dessous, ou pour en ajouter un. Faites-le glisser pour le déplacer. Suppr retire le point orange&#xa0;; les deux extrémités restent.</translation>
    </message>
    <message>
        <source>Tone curve</source>
        <translation>Courbe des tons</translation>
    </message>
    <message>
        <source>Page Up and Page Down select the point to the left or to the right, arrow keys move it. Insert adds a point to its right, Delete removes it; the two ends stay.</source>
        <translation>Page précédente et Page suivante sélectionnent le point à gauche ou à droite, les flèches le déplacent. Inser ajoute un point à sa droite, Suppr le retire&#xa0;; les deux extrémités restent.</translation>
    </message>
    <message>
        <source>The greys before the curve</source>
        <translation>Les gris avant la courbe</translation>
    </message>
    <message>
        <source>Black at the left</source>
        <translation>Le noir à gauche</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; background:white; color:black; white-space:nowrap;&quot;&gt;The greys before the curve, black at the left&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; background:white; color:black; white-space:nowrap;&quot;&gt;Les gris avant la courbe, le noir à gauche&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Straight lines between the points</source>
        <translation>Des droites entre les points</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linéaire</translation>
    </message>
    <message>
        <source>A smooth curve through the points</source>
        <translation>Une courbe lisse passant par les points</translation>
    </message>
    <message>
        <source>BSpline</source>
        <translation>B-spline</translation>
    </message>
</context>
<context>
    <name>FileDealer</name>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Ouvrir une image</translation>
    </message>
    <message>
        <source>Save image</source>
        <translation>Enregistrer l’image</translation>
    </message>
</context>
<context>
    <name>Grain</name>
    <message>
        <source>Presets:</source>
        <translation>Préréglages&#xa0;:</translation>
    </message>
    <message>
        <source>There are no presets for film grain yet</source>
        <translation>Il n’y a pas encore de préréglages pour le grain</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Back to grain in the middle greys, blurred by 1.5 pixels</source>
        <translation>Retour au grain dans les gris moyens, adouci de 1,5 pixel</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>How strong the grain is, from the blacks at the left to the whites at the right. Click to select the point above or below, or to add one. Drag to move it. Delete removes the orange point; the two ends stay.</source>
        <translation>La force du grain, du noir à gauche au blanc à droite. Cliquez pour sélectionner le point au-dessus ou au-dessous, ou pour en ajouter un. Faites-le glisser pour le déplacer. Suppr retire le point orange&#xa0;; les deux extrémités restent.</translation>
    </message>
    <message>
        <source>Strength of the grain</source>
        <translation>Force du grain</translation>
    </message>
    <message>
        <source>How strong the grain is, from the blacks at the left to the whites at the right. Page Up and Page Down select the point to the left or to the right, arrow keys move it. Insert adds a point to its right, Delete removes it; the two ends stay.</source>
        <translation>La force du grain, du noir à gauche au blanc à droite. Page précédente et Page suivante sélectionnent le point à gauche ou à droite, les flèches le déplacent. Inser ajoute un point à sa droite, Suppr le retire&#xa0;; les deux extrémités restent.</translation>
    </message>
    <message>
        <source>The grain on the greys from black to white</source>
        <translation>Le grain sur les gris, du noir au blanc</translation>
    </message>
    <message>
        <source>Preview of the grain</source>
        <translation>Aperçu du grain</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Flou</translation>
    </message>
    <message>
        <source>How coarse the grain is, in pixels</source>
        <translation>La taille du grain, en pixels</translation>
    </message>
</context>
<context>
    <name>GrainPreview</name>
    <message>
        <source>Blurred by %1 pixels</source>
        <translation>Adouci de %L1 pixels</translation>
    </message>
    <message>
        <source>%1, %2 % strong in the blacks, %3 % in the middle greys, %4 % in the whites</source>
        <translation>%1, force %2&#xa0;% dans les noirs, %3&#xa0;% dans les gris moyens, %4&#xa0;% dans les blancs</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Arrow keys move about in the picture, plus and minus zoom. The space bar, while it is held, shows the picture without the filters.</source>
        <translation>Les flèches déplacent la vue, plus et moins agrandissent et réduisent. La barre d’espace, tant qu’elle est enfoncée, affiche l’image sans les filtres.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>1. Mixer</source>
        <translation>1. Mélangeur</translation>
    </message>
    <message>
        <source>Channel Mixer</source>
        <translation>Mélangeur de canaux</translation>
    </message>
    <message>
        <source>2. Curves</source>
        <translation>2. Courbes</translation>
    </message>
    <message>
        <source>Edit mapping function</source>
        <translation>Modifier la courbe des tons</translation>
    </message>
    <message>
        <source>3. Sharpen</source>
        <translation>3. Netteté</translation>
    </message>
    <message>
        <source>Accentuate Details</source>
        <translation>Accentuer les détails</translation>
    </message>
    <message>
        <source>4. Vignette</source>
        <translation>4. Vignettage</translation>
    </message>
    <message>
        <source>Darken Borders</source>
        <translation>Assombrir les bords</translation>
    </message>
    <message>
        <source>5. Film Grain</source>
        <translation>5. Grain</translation>
    </message>
    <message>
        <source>Simulate High ISO Film Grain</source>
        <translation>Simuler le grain des films à haute sensibilité</translation>
    </message>
    <message>
        <source>6. Split Tone</source>
        <translation>6. Virage partiel</translation>
    </message>
    <message>
        <source>Apply Color Tones</source>
        <translation>Teinter les hautes lumières et les ombres</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos de Grisal</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Fit on Width</source>
        <translation>Ajuster à la largeur</translation>
    </message>
    <message>
        <source>Fit on Height</source>
        <translation>Ajuster à la hauteur</translation>
    </message>
    <message>
        <source>Actual Pixels</source>
        <translation>Pixels réels</translation>
    </message>
    <message>
        <source>Zoom to 1:1</source>
        <translation>Zoomer à 1:1</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>The graphics driver offers only OpenGL %1.</source>
        <translation>Le pilote graphique n’offre qu’OpenGL %1.</translation>
    </message>
    <message>
        <source>The graphics driver does not start OpenGL.</source>
        <translation>Le pilote graphique ne démarre pas OpenGL.</translation>
    </message>
    <message>
        <source>There is no OpenGL on this display.</source>
        <translation>Il n’y a pas d’OpenGL sur cet écran.</translation>
    </message>
    <message>
        <source>Some metadata in %1 could not be read</source>
        <translation>Certaines métadonnées de %1 n’ont pas pu être lues</translation>
    </message>
    <message>
        <source>Some metadata could not be saved</source>
        <translation>Certaines métadonnées n’ont pas pu être enregistrées</translation>
    </message>
    <message>
        <source>The log %1 cannot be written.</source>
        <translation>Impossible d’écrire dans le journal %1.</translation>
    </message>
    <message>
        <source>The settings cannot be used, because %1 is too large or is not a regular file.</source>
        <translation>Impossible d’utiliser les réglages&#xa0;: %1 est trop volumineux ou n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>le disque est plein</translation>
    </message>
    <message>
        <source>the name has to end in .jpg, .jpeg, .png, .tif or .tiff</source>
        <translation>le nom doit se terminer par .jpg, .jpeg, .png, .tif ou .tiff</translation>
    </message>
    <message>
        <source>not all of the picture could be written</source>
        <translation>l’image n’a pas pu être écrite en entier</translation>
    </message>
    <message>
        <source>%1 cannot be read after it was written</source>
        <translation>%1 est illisible après l’écriture</translation>
    </message>
    <message>
        <source>the folder cannot be written to (%1)</source>
        <translation>il est impossible d’écrire dans le dossier (%1)</translation>
    </message>
    <message>
        <source>the name belongs to something other than a file</source>
        <translation>ce nom désigne autre chose qu’un fichier</translation>
    </message>
    <message>
        <source>the file is write-protected (%1)</source>
        <translation>le fichier est protégé en écriture (%1)</translation>
    </message>
    <message>
        <source>the file cannot be completed (%1)</source>
        <translation>le fichier ne peut pas être terminé (%1)</translation>
    </message>
    <message>
        <source>the old file cannot be replaced (%1)</source>
        <translation>l’ancien fichier ne peut pas être remplacé (%1)</translation>
    </message>
    <message>
        <source>an image cannot have %1 pixels</source>
        <translation>une image ne peut pas avoir %1 pixels</translation>
    </message>
    <message>
        <source>the image is not valid</source>
        <translation>l’image n’est pas valide</translation>
    </message>
    <message>
        <source>the pixels cannot be accessed</source>
        <translation>les pixels sont inaccessibles</translation>
    </message>
    <message>
        <source>No picture in %1</source>
        <translation>Aucune image dans %1</translation>
    </message>
    <message>
        <source>the file cannot be reached (%1)</source>
        <translation>le fichier est inaccessible (%1)</translation>
    </message>
    <message>
        <source>%1 contains texts that are too long</source>
        <translation>%1 contient des textes trop longs</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Impossible d’ouvrir %1</translation>
    </message>
    <message>
        <source>No JPEG, PNG or TIFF picture in %1</source>
        <translation>Aucune image JPEG, PNG ou TIFF dans %1</translation>
    </message>
    <message>
        <source>%1 is too small a file for its number of pixels</source>
        <translation>%1 est un fichier trop petit pour le nombre de ses pixels</translation>
    </message>
    <message>
        <source>%1 is too large a file for its number of pixels</source>
        <translation>%1 est un fichier trop gros pour le nombre de ses pixels</translation>
    </message>
</context>
<context>
    <name>Mixer</name>
    <message>
        <source>Presets:</source>
        <translation>Préréglages&#xa0;:</translation>
    </message>
    <message>
        <source>Looks named after black-and-white film stocks</source>
        <translation>Des rendus portant le nom de films en noir et blanc</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Back to the plain average of the channels</source>
        <translation>Retour à la simple moyenne des canaux</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Click or drag to choose the weights: red upwards, blue to the right, the plain average in the middle. The mouse wheel raises and lowers them all.</source>
        <translation>Cliquez ou faites glisser pour choisir les poids&#xa0;: le rouge vers le haut, le bleu vers la droite, la simple moyenne au centre. La molette les augmente et les diminue tous.</translation>
    </message>
    <message>
        <source>Colour wheel</source>
        <translation>Roue des couleurs</translation>
    </message>
    <message>
        <source>Arrow keys choose the weights: red upwards, blue to the right, the plain average in the middle. Page Up and Page Down raise and lower them all.</source>
        <translation>Les flèches choisissent les poids&#xa0;: le rouge vers le haut, le bleu vers la droite, la simple moyenne au centre. Page précédente et Page suivante les augmentent et les diminuent tous.</translation>
    </message>
    <message>
        <source>Luma</source>
        <translation>Luma</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; background:white; color:black;&quot;&gt;The sum of the weights: 255 keeps the brightness of the picture&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; background:white; color:black;&quot;&gt;La somme des poids&#xa0;: 255 conserve la luminosité de l’image&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Sum of the weights</source>
        <translation>Somme des poids</translation>
    </message>
    <message>
        <source>The sum of the weights: 255 keeps the brightness of the picture</source>
        <translation>La somme des poids&#xa0;: 255 conserve la luminosité de l’image</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; color:#ff0000;&quot;&gt;Red&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; color:#ff0000;&quot;&gt;Rouge&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Red&apos;s share of the grey. It takes effect with the next change of the luma.</source>
        <translation>La part du rouge dans le gris. Elle prend effet au prochain changement de luma.</translation>
    </message>
    <message>
        <source>Red weight</source>
        <translation>Poids du rouge</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; color:green;&quot;&gt;Green&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; color:green;&quot;&gt;Vert&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Green&apos;s share of the grey. It takes effect with the next change of the luma.</source>
        <translation>La part du vert dans le gris. Elle prend effet au prochain changement de luma.</translation>
    </message>
    <message>
        <source>Green weight</source>
        <translation>Poids du vert</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; color:#0000ff;&quot;&gt;Blue&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; color:#0000ff;&quot;&gt;Bleu&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Blue&apos;s share of the grey. It takes effect with the next change of the luma.</source>
        <translation>La part du bleu dans le gris. Elle prend effet au prochain changement de luma.</translation>
    </message>
    <message>
        <source>Blue weight</source>
        <translation>Poids du bleu</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Takes effect with the next change of Luma, which shifts all three by the same amount</source>
        <translation>Prend effet au prochain changement de Luma, qui décale les trois de la même valeur</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Remembered from the last pictures</source>
        <translation>Mémorisé</translation>
    </message>
    <message>
        <source>Last directory:</source>
        <translation>Dernier dossier&#xa0;:</translation>
    </message>
    <message>
        <source>Where the dialogs for opening and saving start</source>
        <translation>Le dossier où s’ouvrent les boîtes de dialogue d’ouverture et d’enregistrement</translation>
    </message>
    <message>
        <source>Last directory</source>
        <translation>Dernier dossier</translation>
    </message>
    <message>
        <source>None: dialogs start in your home directory</source>
        <translation>Aucun&#xa0;: les boîtes de dialogue s’ouvrent dans le dossier personnel</translation>
    </message>
    <message>
        <source>Forget the last directory: dialogs start in your home directory again</source>
        <translation>Oublier le dernier dossier&#xa0;: les boîtes de dialogue s’ouvrent de nouveau dans votre dossier personnel</translation>
    </message>
    <message>
        <source>Forget the last directory</source>
        <translation>Oublier le dernier dossier</translation>
    </message>
    <message>
        <source>Dialogs start in your home directory again</source>
        <translation>Les boîtes de dialogue s’ouvrent de nouveau dans votre dossier personnel</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Oublier</translation>
    </message>
    <message>
        <source>Recent images:</source>
        <translation>Images récentes&#xa0;:</translation>
    </message>
    <message>
        <source>The pictures of the menu File, Recent, and those whose files are missing at the moment</source>
        <translation>Les images du menu «&#xa0;Fichier&#xa0;», «&#xa0;Récents&#xa0;» et celles dont les fichiers sont actuellement introuvables</translation>
    </message>
    <message>
        <source>Recent images</source>
        <translation>Images récentes</translation>
    </message>
    <message>
        <source>Forget the recent images: the menu File, Recent becomes empty</source>
        <translation>Oublier les images récentes&#xa0;: le menu «&#xa0;Fichier&#xa0;», «&#xa0;Récents&#xa0;» est vidé</translation>
    </message>
    <message>
        <source>Forget the recent images</source>
        <translation>Oublier les images récentes</translation>
    </message>
    <message>
        <source>The menu File, Recent becomes empty</source>
        <translation>Le menu «&#xa0;Fichier&#xa0;», «&#xa0;Récents&#xa0;» est vidé</translation>
    </message>
    <message>
        <source>Files of the program</source>
        <translation>Fichiers du programme</translation>
    </message>
    <message>
        <source>Log:</source>
        <translation>Journal&#xa0;:</translation>
    </message>
    <message>
        <source>Actions and errors of the program, one per line</source>
        <translation>Actions et erreurs du programme, ligne par ligne</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Open the folder of the log</source>
        <translation>Ouvrir le dossier du journal</translation>
    </message>
    <message>
        <source>Shows it in the file manager</source>
        <translation>L’affiche dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Réglages&#xa0;:</translation>
    </message>
    <message>
        <source>Where the last directory and the recent images are kept</source>
        <translation>L’emplacement où sont conservés le dernier dossier et les images récentes</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Open the folder of the settings</source>
        <translation>Ouvrir le dossier des réglages</translation>
    </message>
    <message>
        <source>The settings could not be changed. The log contains the reason.</source>
        <translation>Les réglages n’ont pas pu être modifiés. Le journal en donne la raison.</translation>
    </message>
    <message>
        <source>No program was found that opens the folder %1.</source>
        <translation>Aucun programme capable d’ouvrir le dossier %1 n’a été trouvé.</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>No OpenGL</source>
        <translation>Pas d’OpenGL</translation>
    </message>
    <message>
        <source>%1
Grisal needs OpenGL 2.1 to show and save pictures. Please install or update the graphics driver and start Grisal again.</source>
        <translation>%1
Grisal a besoin d’OpenGL 2.1 pour afficher et enregistrer des images. Veuillez installer ou mettre à jour le pilote graphique, puis relancer Grisal.</translation>
    </message>
</context>
<context>
    <name>Sharpen</name>
    <message>
        <source>There is no sharpening yet: the button does nothing</source>
        <translation>L’accentuation n’est pas encore disponible&#xa0;: le bouton ne fait rien</translation>
    </message>
    <message>
        <source>Sharpen Not Yet Available</source>
        <translation>L’accentuation n’est pas encore disponible</translation>
    </message>
</context>
<context>
    <name>SplitTone</name>
    <message>
        <source>Presets:</source>
        <translation>Préréglages&#xa0;:</translation>
    </message>
    <message>
        <source>There are no presets yet</source>
        <translation>Il n’y a pas encore de préréglages</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Back to warm highlights, cool shadows and an even weight</source>
        <translation>Retour aux hautes lumières chaudes, aux ombres froides et à la balance égale</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Hautes lumières</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; background:white; color:black; white-space:nowrap;&quot;&gt;How light the tint is; it keeps its colour&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; background:white; color:black; white-space:nowrap;&quot;&gt;La luminosité de la teinte&#xa0;; sa couleur ne change pas&lt;/div&gt;</translation>
    </message>
    <message>
        <source>How light the tint is; it keeps its colour</source>
        <translation>La luminosité de la teinte&#xa0;; sa couleur ne change pas</translation>
    </message>
    <message>
        <source>Luma of the highlights</source>
        <translation>Luma des hautes lumières</translation>
    </message>
    <message>
        <source>Click or drag to choose the tint of the highlights: red upwards, blue to the right, grey in the middle. The mouse wheel makes it lighter or darker.</source>
        <translation>Cliquez ou faites glisser pour choisir la teinte des hautes lumières&#xa0;: le rouge vers le haut, le bleu vers la droite, le gris au centre. La molette l’éclaircit ou l’assombrit.</translation>
    </message>
    <message>
        <source>Colour wheel of the highlights</source>
        <translation>Roue des couleurs des hautes lumières</translation>
    </message>
    <message>
        <source>Arrow keys choose the tint of the highlights: red upwards, blue to the right, grey in the middle. Page Up and Page Down make it lighter or darker.</source>
        <translation>Les flèches choisissent la teinte des hautes lumières&#xa0;: le rouge vers le haut, le bleu vers la droite, le gris au centre. Page précédente et Page suivante l’éclaircissent ou l’assombrissent.</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; color:#ff0000;&quot;&gt;Red&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; color:#ff0000;&quot;&gt;Rouge&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Red of the highlights. It takes effect with the next change of the weight, a wheel or a luma.</source>
        <translation>Le rouge des hautes lumières. Il prend effet au prochain changement de la balance, d’une roue ou d’une luma.</translation>
    </message>
    <message>
        <source>Red of the highlights</source>
        <translation>Rouge des hautes lumières</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; color:green;&quot;&gt;Green&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; color:green;&quot;&gt;Vert&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Green of the highlights. It takes effect with the next change of the weight, a wheel or a luma.</source>
        <translation>Le vert des hautes lumières. Il prend effet au prochain changement de la balance, d’une roue ou d’une luma.</translation>
    </message>
    <message>
        <source>Green of the highlights</source>
        <translation>Vert des hautes lumières</translation>
    </message>
    <message>
        <source>&lt;div style=&quot; color:#0000ff;&quot;&gt;Blue&lt;/div&gt;</source>
        <translation>&lt;div style=&quot; color:#0000ff;&quot;&gt;Bleu&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Blue of the highlights. It takes effect with the next change of the weight, a wheel or a luma.</source>
        <translation>Le bleu des hautes lumières. Il prend effet au prochain changement de la balance, d’une roue ou d’une luma.</translation>
    </message>
    <message>
        <source>Blue of the highlights</source>
        <translation>Bleu des hautes lumières</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Which tint reaches further: more to the right the highlights&apos;, more to the left the shadows&apos;</source>
        <translation>Quelle teinte s’étend le plus&#xa0;: vers la droite celle des hautes lumières, vers la gauche celle des ombres</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>Ombres</translation>
    </message>
    <message>
        <source>Luma of the shadows</source>
        <translation>Luma des ombres</translation>
    </message>
    <message>
        <source>Click or drag to choose the tint of the shadows: red upwards, blue to the right, grey in the middle. The mouse wheel makes it lighter or darker.</source>
        <translation>Cliquez ou faites glisser pour choisir la teinte des ombres&#xa0;: le rouge vers le haut, le bleu vers la droite, le gris au centre. La molette l’éclaircit ou l’assombrit.</translation>
    </message>
    <message>
        <source>Colour wheel of the shadows</source>
        <translation>Roue des couleurs des ombres</translation>
    </message>
    <message>
        <source>Arrow keys choose the tint of the shadows: red upwards, blue to the right, grey in the middle. Page Up and Page Down make it lighter or darker.</source>
        <translation>Les flèches choisissent la teinte des ombres&#xa0;: le rouge vers le haut, le bleu vers la droite, le gris au centre. Page précédente et Page suivante l’éclaircissent ou l’assombrissent.</translation>
    </message>
    <message>
        <source>Red of the shadows. It takes effect with the next change of the weight, a wheel or a luma.</source>
        <translation>Le rouge des ombres. Il prend effet au prochain changement de la balance, d’une roue ou d’une luma.</translation>
    </message>
    <message>
        <source>Red of the shadows</source>
        <translation>Rouge des ombres</translation>
    </message>
    <message>
        <source>Green of the shadows. It takes effect with the next change of the weight, a wheel or a luma.</source>
        <translation>Le vert des ombres. Il prend effet au prochain changement de la balance, d’une roue ou d’une luma.</translation>
    </message>
    <message>
        <source>Green of the shadows</source>
        <translation>Vert des ombres</translation>
    </message>
    <message>
        <source>Blue of the shadows. It takes effect with the next change of the weight, a wheel or a luma.</source>
        <translation>Le bleu des ombres. Il prend effet au prochain changement de la balance, d’une roue ou d’une luma.</translation>
    </message>
    <message>
        <source>Blue of the shadows</source>
        <translation>Bleu des ombres</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>Grisal User Guide</source>
        <translation>Guide de Grisal</translation>
    </message>
    <message>
        <source>To the list of contents at the top</source>
        <translation>Vers le sommaire, au début</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>To where the last link was followed</source>
        <translation>Vers l’endroit où le dernier lien a été suivi</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Along the link that was followed before going back</source>
        <translation>Suit de nouveau le lien dont vous êtes revenu</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>What the panels do, shortcuts, files</source>
        <translation>Ce que font les panneaux, les raccourcis, les fichiers</translation>
    </message>
</context>
<context>
    <name>VFrame</name>
    <message>
        <source>Centre %1 % from the left and %2 % from the top, radius %3 %, strength %4 %</source>
        <translation>Centre à %1&#xa0;% depuis la gauche et %2&#xa0;% depuis le haut, rayon %3&#xa0;%, force %4&#xa0;%</translation>
    </message>
</context>
<context>
    <name>Vignette</name>
    <message>
        <source>Presets:</source>
        <translation>Préréglages&#xa0;:</translation>
    </message>
    <message>
        <source>There are no presets yet</source>
        <translation>Il n’y a pas encore de préréglages</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Back to a vignette from the middle, of half radius and half strength</source>
        <translation>Retour à un vignettage centré, de rayon et de force moyens</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Click or drag to choose the centre. The mouse wheel changes the radius, with the Control key held the strength.</source>
        <translation>Cliquez ou faites glisser pour choisir le centre. La molette change le rayon, et la force si vous maintenez Ctrl.</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignettage</translation>
    </message>
    <message>
        <source>Arrow keys move the centre. Page Up and Page Down change the radius, with the Control key held the strength.</source>
        <translation>Les flèches déplacent le centre. Page précédente et Page suivante changent le rayon, et la force si vous maintenez Ctrl.</translation>
    </message>
    <message>
        <source>Where the centre lies, in percent of the picture&apos;s width from the left</source>
        <translation>La position du centre, en pour cent de la largeur de l’image depuis la gauche</translation>
    </message>
    <message>
        <source>Centre from the left in percent</source>
        <translation>Centre depuis la gauche en pour cent</translation>
    </message>
    <message>
        <source>Where the centre lies, in percent of the picture&apos;s height from the top</source>
        <translation>La position du centre, en pour cent de la hauteur de l’image depuis le haut</translation>
    </message>
    <message>
        <source>Centre from the top in percent</source>
        <translation>Centre depuis le haut en pour cent</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>How far from the centre the strength is reached, in percent of the mean of the picture&apos;s width and height</source>
        <translation>À quelle distance du centre la force est atteinte, en pour cent de la moyenne de la largeur et de la hauteur de l’image</translation>
    </message>
    <message>
        <source>Radius in percent</source>
        <translation>Rayon en pour cent</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Force</translation>
    </message>
    <message>
        <source>How much the picture is darkened at the radius, in percent: 0 leaves it as it is</source>
        <translation>De combien l’image est assombrie à ce rayon, en pour cent&#xa0;: 0 la laisse telle quelle</translation>
    </message>
    <message>
        <source>Strength in percent</source>
        <translation>Force en pour cent</translation>
    </message>
    <message>
        <source>Has no effect on the picture yet</source>
        <translation>Sans effet sur l’image pour l’instant</translation>
    </message>
    <message>
        <source>Extra blur</source>
        <translation>Flou supplémentaire</translation>
    </message>
    <message>
        <source>Extra Blur</source>
        <translation>Flou supplémentaire</translation>
    </message>
</context>
<context>
    <name>YUVFrame</name>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>%1, level %2: red %3, green %4, blue %5</source>
        <translation>%1, niveau %2&#xa0;: rouge %3, vert %4, bleu %5</translation>
    </message>
</context>
<context>
    <name>grisal::ui::GLWidget</name>
    <message>
        <source>No picture</source>
        <translation>Aucune image</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at %3 %</source>
        <translation>%1 x %2 pixels à %3&#xa0;%</translation>
    </message>
    <message>
        <source>%1, without the filters</source>
        <translation>%1, sans les filtres</translation>
    </message>
</context>
<context>
    <name>grisal::ui::MainWindow</name>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Ouvrir une image</translation>
    </message>
    <message>
        <source>Cannot load %1.</source>
        <translation>Impossible de charger %1.</translation>
    </message>
    <message>
        <source>No filename</source>
        <translation>Aucun nom de fichier</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Aucune image</translation>
    </message>
    <message>
        <source>The picture could not be rendered. Nothing was saved; the log contains the reason.</source>
        <translation>L’image n’a pas pu être calculée. Rien n’a été enregistré&#xa0;; le journal en dit plus.</translation>
    </message>
    <message>
        <source>File %1 already exists.
 Do you want to replace it?</source>
        <translation>Le fichier %1 existe déjà.
 Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Écraser&#xa0;?</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lecture de %1</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>Écriture de %1</translation>
    </message>
    <message>
        <source>Rendering tile %1 of %2</source>
        <translation>Calcul de la tuile %1 sur %2</translation>
    </message>
    <message>
        <source>Opening and saving it takes up to %1 of memory, but only %2 are free.</source>
        <translation>L’ouvrir et l’enregistrer demande jusqu’à %1 de mémoire, mais il n’en reste que %2 de libre.</translation>
    </message>
    <message>
        <source>%1 opens a picture</source>
        <translation>%1 ouvre une image</translation>
    </message>
    <message>
        <source>Only the first of the %1 pictures was opened</source>
        <translation>Seule la première des %1 images a été ouverte</translation>
    </message>
    <message>
        <source>Cannot save %1: %2</source>
        <translation>Impossible d’enregistrer %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>It is not a file on this computer, or its name is invalid. Please copy the picture to a folder on this computer and open the copy.</source>
        <translation>Ce n’est pas un fichier de cet ordinateur, ou son nom n’est pas valide. Veuillez copier l’image dans un dossier de cet ordinateur et ouvrir la copie.</translation>
    </message>
    <message>
        <source>There is no such file. It may have been moved or deleted.</source>
        <translation>Ce fichier n’existe pas. Il a peut-être été déplacé ou supprimé.</translation>
    </message>
</context>
<context>
    <name>grisal::ui::StatusBar</name>
    <message>
        <source>The preview of a large picture is smaller than the picture. The file is saved in full size.</source>
        <translation>L’aperçu d’une grande image est plus petit que l’image. Le fichier est enregistré en taille réelle.</translation>
    </message>
    <message>
        <source>Size on the screen, in percent of the size in the file</source>
        <translation>Taille à l’écran, en pourcentage de la taille dans le fichier</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Progress of reading, rendering or writing</source>
        <translation>Progression de la lecture, du calcul ou de l’écriture</translation>
    </message>
    <message>
        <source>Preview 1:%1</source>
        <translation>Aperçu 1:%1</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
</TS>
