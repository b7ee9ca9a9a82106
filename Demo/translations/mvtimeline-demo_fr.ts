<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>MvDemoCommandLine</name>
    <message>
        <source>Play the built-in scenario, save screenshots and the journal, then quit.</source>
        <translation>Jouer le scénario intégré, enregistrer les captures d’écran et le journal, puis quitter.</translation>
    </message>
    <message>
        <source>Folder for the scenario&apos;s files.</source>
        <translation>Dossier des fichiers du scénario.</translation>
    </message>
    <message>
        <source>dir</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>Print the library&apos;s detail and note records too, not only its warnings and refusals.</source>
        <translation>Afficher aussi les entrées de détail et de note de la bibliothèque, pas seulement ses avertissements et refus.</translation>
    </message>
    <message>
        <source>Show the demo in this language (for instance de or fr) instead of the system&apos;s.</source>
        <translation>Afficher la démo dans cette langue (par exemple de ou fr) au lieu de celle du système.</translation>
    </message>
    <message>
        <source>language</source>
        <translation>langue</translation>
    </message>
    <message>
        <source>MvTimeline demo editor</source>
        <translation>Éditeur de démonstration MvTimeline</translation>
    </message>
</context>
<context>
    <name>MvDemoEffectsDock</name>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>%1 (sound)</source>
        <translation>%1 (son)</translation>
    </message>
    <message>
        <source>Apply to Selection</source>
        <translation>Appliquer à la sélection</translation>
    </message>
</context>
<context>
    <name>MvDemoJournalWords</name>
    <message>
        <source>ask whether to ungroup before splitting</source>
        <translation>demander s’il faut dissocier avant de couper</translation>
    </message>
    <message>
        <source>switch the player to this timeline</source>
        <translation>basculer le lecteur sur cette timeline</translation>
    </message>
    <message>
        <source>effects pasted, update the player</source>
        <translation>effets collés, mettre à jour le lecteur</translation>
    </message>
    <message>
        <source>pause player</source>
        <translation>mettre le lecteur en pause</translation>
    </message>
    <message>
        <source>stop player</source>
        <translation>arrêter le lecteur</translation>
    </message>
    <message>
        <source>ask whether the player is playing</source>
        <translation>demander si le lecteur joue</translation>
    </message>
    <message>
        <source>pause player and wait for it</source>
        <translation>mettre le lecteur en pause et l’attendre</translation>
    </message>
    <message>
        <source>seek</source>
        <translation>se positionner</translation>
    </message>
    <message>
        <source>seek once paused</source>
        <translation>se positionner une fois en pause</translation>
    </message>
    <message>
        <source>hide the property panel</source>
        <translation>masquer le panneau des propriétés</translation>
    </message>
    <message>
        <source>show a page of the property panel</source>
        <translation>afficher une page du panneau des propriétés</translation>
    </message>
    <message>
        <source>open the advanced subtitle editor</source>
        <translation>ouvrir l’éditeur avancé de sous-titres</translation>
    </message>
    <message>
        <source>open the advanced text editor</source>
        <translation>ouvrir l’éditeur de texte avancé</translation>
    </message>
    <message>
        <source>open the advanced colour panel</source>
        <translation>ouvrir le panneau de couleur avancé</translation>
    </message>
    <message>
        <source>open the advanced title editor</source>
        <translation>ouvrir l’éditeur de titres avancé</translation>
    </message>
    <message>
        <source>effects deleted</source>
        <translation>effets supprimés</translation>
    </message>
    <message>
        <source>effects pasted</source>
        <translation>effets collés</translation>
    </message>
    <message>
        <source>show the property panel</source>
        <translation>afficher le panneau des propriétés</translation>
    </message>
    <message>
        <source>find similar resources in the media library</source>
        <translation>chercher des ressources similaires dans la médiathèque</translation>
    </message>
    <message>
        <source>select clips in the media editor</source>
        <translation>sélectionner des clips dans l’éditeur de médias</translation>
    </message>
    <message>
        <source>download media items</source>
        <translation>télécharger des médias</translation>
    </message>
    <message>
        <source>choose the resolution of stock items</source>
        <translation>choisir la résolution des médias de banque</translation>
    </message>
    <message>
        <source>choose the resolution of a VCG item</source>
        <translation>choisir la résolution d’un média VCG</translation>
    </message>
    <message>
        <source>offer the media&apos;s settings to the project</source>
        <translation>proposer au projet les réglages du média</translation>
    </message>
    <message>
        <source>media added</source>
        <translation>médias ajoutés</translation>
    </message>
    <message>
        <source>bring the new clips into view</source>
        <translation>faire apparaître les nouveaux clips</translation>
    </message>
    <message>
        <source>message %1</source>
        <translation>message %1</translation>
    </message>
    <message>
        <source>refusal</source>
        <translation>refus</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>avertissement</translation>
    </message>
    <message>
        <source>note</source>
        <translation>note</translation>
    </message>
    <message>
        <source>detail</source>
        <translation>détail</translation>
    </message>
    <message>
        <source>library %1: %2 (%3)</source>
        <translation>bibliothèque %1 : %2 (%3)</translation>
    </message>
    <message>
        <source>ask whether to replace an audio effect</source>
        <translation>demander s’il faut remplacer un effet audio</translation>
    </message>
</context>
<context>
    <name>MvDemoLibraryDock</name>
    <message>
        <source>Library</source>
        <translation>Bibliothèque</translation>
    </message>
    <message>
        <source>Find Similar asks the media library for resources like the one a clip was made from. The library&apos;s answers would be listed here; the requests are:</source>
        <translation>« Rechercher des similaires » demande à la médiathèque des ressources semblables à celle dont un clip est issu. Ses réponses s’afficheraient ici ; les demandes sont :</translation>
    </message>
    <message>
        <source>Similar to “%1” on the %2 shelf (resource %3, %4, library %5)</source>
        <translation>Semblable à « %1 » dans le rayon %2 (ressource %3, %4, bibliothèque %5)</translation>
    </message>
</context>
<context>
    <name>MvDemoMarkerDialogStyle</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>MvDemoMediaPanel</name>
    <message>
        <source>Media</source>
        <translation>Médias</translation>
    </message>
    <message>
        <source>Double-click or drag onto a track to add.</source>
        <translation>Double-cliquez ou faites glisser sur une piste pour ajouter.</translation>
    </message>
    <message>
        <source>Add to Timeline</source>
        <translation>Ajouter à la timeline</translation>
    </message>
</context>
<context>
    <name>MvDemoMediaScene</name>
    <message>
        <source>downloaded one item</source>
        <translation>un média téléchargé</translation>
    </message>
    <message>
        <source>downloaded %1 items</source>
        <translation>%1 médias téléchargés</translation>
    </message>
    <message>
        <source>added %1 as one clip</source>
        <translation>%1 ajouté comme un seul clip</translation>
    </message>
    <message>
        <source>added %1 as %2 clips</source>
        <translation>%1 ajouté comme %2 clips</translation>
    </message>
    <message>
        <source>the new clip brought into view</source>
        <translation>le nouveau clip est affiché</translation>
    </message>
    <message>
        <source>%1 new clips brought into view</source>
        <translation>%1 nouveaux clips sont affichés</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Téléchargement</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Téléchargement de %1…</translation>
    </message>
    <message>
        <source>download cancelled: %1 of %2 fetched, %3 stays online</source>
        <translation>téléchargement annulé : %1 sur %2 récupérés, %3 reste en ligne</translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 omis</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Choose a Resolution</source>
        <translation>Choisir une résolution</translation>
    </message>
    <message>
        <source>“%1” comes in these resolutions:</source>
        <translation>« %1 » existe dans ces résolutions :</translation>
    </message>
    <message>
        <source>Use This Resolution</source>
        <translation>Utiliser cette résolution</translation>
    </message>
    <message>
        <source>Project Settings</source>
        <translation>Paramètres du projet</translation>
    </message>
    <message>
        <source>nothing to match</source>
        <translation>rien à aligner</translation>
    </message>
    <message>
        <source>the project already runs at %1 fps</source>
        <translation>le projet tourne déjà à %1 i/s</translation>
    </message>
    <message>
        <source>%1 runs at %2 fps; the project runs at %3 fps. Change the project to %2 fps?</source>
        <translation>%1 tourne à %2 i/s ; le projet tourne à %3 i/s. Passer le projet à %2 i/s ?</translation>
    </message>
    <message>
        <source>Change to %1 fps</source>
        <translation>Passer à %1 i/s</translation>
    </message>
    <message>
        <source>Keep %1 fps</source>
        <translation>Garder %1 i/s</translation>
    </message>
    <message>
        <source>the project keeps %1 fps</source>
        <translation>le projet garde %1 i/s</translation>
    </message>
    <message>
        <source>the project now runs at %1 fps</source>
        <translation>le projet tourne maintenant à %1 i/s</translation>
    </message>
</context>
<context>
    <name>MvDemoMediaThumbnail</name>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Sous-titres</translation>
    </message>
    <message>
        <source>Screen recording</source>
        <translation>Enregistrement d’écran</translation>
    </message>
    <message>
        <source>Compound</source>
        <translation>Composé</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>%1, read on first use</source>
        <translation>%1, lu à la première utilisation</translation>
    </message>
    <message>
        <source>%1, %2 s</source>
        <translation>%1, %2 s</translation>
    </message>
    <message>
        <source>%1, still recording</source>
        <translation>%1, enregistrement en cours</translation>
    </message>
    <message>
        <source>%1, empty</source>
        <translation>%1, vide</translation>
    </message>
    <message>
        <source>, %1 fps</source>
        <translation>, %1 i/s</translation>
    </message>
</context>
<context>
    <name>MvDemoPropertiesDock</name>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Video keyframes: pick one to go there</source>
        <translation>Images clés vidéo : choisissez-en une pour y aller</translation>
    </message>
    <message>
        <source>Audio keyframes: pick one to go there</source>
        <translation>Images clés audio : choisissez-en une pour y aller</translation>
    </message>
    <message>
        <source>the Properties dock is hidden</source>
        <translation>le panneau Propriétés est masqué</translation>
    </message>
    <message>
        <source>selected in the text editor: %1</source>
        <translation>sélectionné dans l’éditeur de texte : %1</translation>
    </message>
    <message>
        <source>Properties dock shows: %1</source>
        <translation>Le panneau Propriétés affiche : %1</translation>
    </message>
    <message>
        <source>keyframe panel: Properties dock shows: %1</source>
        <translation>panneau d’images clés : le panneau Propriétés affiche : %1</translation>
    </message>
    <message>
        <source>%1, rotated %2°</source>
        <translation>%1, pivoté de %2°</translation>
    </message>
    <message>
        <source>Select a picture clip.</source>
        <translation>Sélectionnez un clip d’image.</translation>
    </message>
    <message>
        <source>Select a clip with sound.</source>
        <translation>Sélectionnez un clip avec du son.</translation>
    </message>
    <message>
        <source>Colour grading of “%1”: the editor&apos;s colour wheels and curves would open here.</source>
        <translation>Étalonnage de « %1 » : les roues chromatiques et les courbes de l’éditeur s’ouvriraient ici.</translation>
    </message>
    <message>
        <source>Select a picture clip to grade its colours.</source>
        <translation>Sélectionnez un clip d’image pour étalonner ses couleurs.</translation>
    </message>
    <message>
        <source>This selection has no property panel.</source>
        <translation>Cette sélection n’a pas de panneau de propriétés.</translation>
    </message>
    <message>
        <source>The texts of “%1”</source>
        <translation>Les textes de « %1 »</translation>
    </message>
    <message>
        <source>Select a text.</source>
        <translation>Sélectionnez un texte.</translation>
    </message>
    <message>
        <source>%1 (secondary)</source>
        <translation>%1 (secondaire)</translation>
    </message>
    <message>
        <source>keyframe picked: %1 at %2</source>
        <translation>image clé choisie : %1 à %2</translation>
    </message>
</context>
<context>
    <name>MvDemoPropertyWords</name>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Video with sound</source>
        <translation>Vidéo avec son</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Autocollant</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effet</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Adjustment layer</source>
        <translation>Calque de réglage</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Espace réservé</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forme</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transition</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Sous-titre</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Compound clip</source>
        <translation>Clip composé</translation>
    </message>
    <message>
        <source>Screen recording</source>
        <translation>Enregistrement d’écran</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>Sound effect</source>
        <translation>Effet sonore</translation>
    </message>
    <message>
        <source>Kind %1</source>
        <translation>Type %1</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Sound effects</source>
        <translation>Effets sonores</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>Autocollants</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Transitions</translation>
    </message>
    <message>
        <source>no shelf</source>
        <translation>aucun rayon</translation>
    </message>
    <message>
        <source>Clip properties</source>
        <translation>Propriétés du clip</translation>
    </message>
    <message>
        <source>Picture properties and video keyframes</source>
        <translation>Propriétés de l’image et images clés vidéo</translation>
    </message>
    <message>
        <source>Audio properties and audio keyframes</source>
        <translation>Propriétés audio et images clés audio</translation>
    </message>
    <message>
        <source>Advanced text editor</source>
        <translation>Éditeur de texte avancé</translation>
    </message>
    <message>
        <source>Advanced subtitle editor</source>
        <translation>Éditeur de sous-titres avancé</translation>
    </message>
    <message>
        <source>Advanced title editor</source>
        <translation>Éditeur de titres avancé</translation>
    </message>
    <message>
        <source>Advanced colour editor</source>
        <translation>Éditeur de couleur avancé</translation>
    </message>
    <message>
        <source>No properties</source>
        <translation>Aucune propriété</translation>
    </message>
    <message>
        <source>%1 (clip frame %2)</source>
        <translation>%1 (image %2 du clip)</translation>
    </message>
    <message>
        <source>Select a clip to see its properties.</source>
        <translation>Sélectionnez un clip pour voir ses propriétés.</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>Nom : %1</translation>
    </message>
    <message>
        <source>Kind: %1</source>
        <translation>Type : %1</translation>
    </message>
    <message>
        <source>From %1 to %2 (%3 frames)</source>
        <translation>De %1 à %2 (%3 images)</translation>
    </message>
    <message>
        <source>Track: %1</source>
        <translation>Piste : %1</translation>
    </message>
    <message>
        <source>Rotation: %1°</source>
        <translation>Rotation : %1°</translation>
    </message>
    <message>
        <source>Library resource: “%1” from library %2%3</source>
        <translation>Ressource de bibliothèque : « %1 » de la bibliothèque %2%3</translation>
    </message>
    <message>
        <source>, similar resources can be found</source>
        <translation>, des ressources similaires peuvent être trouvées</translation>
    </message>
    <message>
        <source>Your own media</source>
        <translation>Vos propres médias</translation>
    </message>
    <message>
        <source>%1 (secondary)</source>
        <translation>%1 (secondaire)</translation>
    </message>
    <message>
        <source>Layers: %1</source>
        <translation>Calques : %1</translation>
    </message>
    <message>
        <source>Keyframes: %1 video, %2 audio</source>
        <translation>Images clés : %1 vidéo, %2 audio</translation>
    </message>
</context>
<context>
    <name>MvDemoRefusals</name>
    <message>
        <source>Select one clip made from a library resource to find similar ones.</source>
        <translation>Sélectionnez un clip issu d’une ressource de bibliothèque pour en trouver de semblables.</translation>
    </message>
    <message>
        <source>“%1” is your own media: the library finds only resources like its own.</source>
        <translation>« %1 » est votre propre média : la bibliothèque ne trouve que des ressources semblables aux siennes.</translation>
    </message>
    <message>
        <source>The library&apos;s similarity search does not know “%1”.</source>
        <translation>La recherche de similarité de la bibliothèque ne connaît pas « %1 ».</translation>
    </message>
    <message>
        <source>Select one composed text to select its texts.</source>
        <translation>Sélectionnez un texte composé pour sélectionner ses textes.</translation>
    </message>
    <message>
        <source>“%1” is not composed of texts.</source>
        <translation>« %1 » n’est pas composé de textes.</translation>
    </message>
    <message>
        <source>Select a clip first.</source>
        <translation>Sélectionnez d’abord un clip.</translation>
    </message>
    <message>
        <source>Colours are graded on picture clips.</source>
        <translation>L’étalonnage se fait sur des clips d’image.</translation>
    </message>
    <message>
        <source>Pick a keyframe in the Properties dock first.</source>
        <translation>Choisissez d’abord une image clé dans le panneau Propriétés.</translation>
    </message>
    <message>
        <source>Close the virtual playhead before splitting.</source>
        <translation>Fermez la tête de lecture virtuelle avant de couper.</translation>
    </message>
    <message>
        <source>There is no clip under the playhead to split.</source>
        <translation>Aucun clip à couper sous la tête de lecture.</translation>
    </message>
    <message>
        <source>None of the selected clips is under the playhead.</source>
        <translation>Aucun des clips sélectionnés n’est sous la tête de lecture.</translation>
    </message>
    <message>
        <source>The clips under the playhead are on locked tracks.</source>
        <translation>Les clips sous la tête de lecture sont sur des pistes verrouillées.</translation>
    </message>
    <message>
        <source>Select one clip to trim.</source>
        <translation>Sélectionnez un clip à rogner.</translation>
    </message>
    <message>
        <source>The selected clip is on a locked track.</source>
        <translation>Le clip sélectionné est sur une piste verrouillée.</translation>
    </message>
    <message>
        <source>Put the playhead inside the selected clip to trim it.</source>
        <translation>Placez la tête de lecture dans le clip sélectionné pour le rogner.</translation>
    </message>
    <message>
        <source>Select the clips to ripple delete.</source>
        <translation>Sélectionnez les clips à supprimer en refermant l’espace.</translation>
    </message>
    <message>
        <source>Nothing is selected to delete.</source>
        <translation>Rien n’est sélectionné à supprimer.</translation>
    </message>
    <message>
        <source>A selected clip is on a locked track.</source>
        <translation>Un clip sélectionné est sur une piste verrouillée.</translation>
    </message>
    <message>
        <source>There is no timeline.</source>
        <translation>Il n’y a pas de timeline.</translation>
    </message>
    <message>
        <source>Select the clips to move.</source>
        <translation>Sélectionnez les clips à déplacer.</translation>
    </message>
    <message>
        <source>The clips already start at the beginning of the timeline.</source>
        <translation>Les clips commencent déjà au début de la timeline.</translation>
    </message>
    <message>
        <source>There is no track of the clips&apos; kind there.</source>
        <translation>Il n’y a pas de piste du type de ces clips à cet endroit.</translation>
    </message>
    <message>
        <source>The track the clips would move to is locked.</source>
        <translation>La piste de destination des clips est verrouillée.</translation>
    </message>
    <message>
        <source>The clips cannot move before the start of the timeline.</source>
        <translation>Les clips ne peuvent pas aller avant le début de la timeline.</translation>
    </message>
    <message>
        <source>Another clip is in the way.</source>
        <translation>Un autre clip gêne.</translation>
    </message>
    <message>
        <source>Select a clip to rotate.</source>
        <translation>Sélectionnez un clip à faire pivoter.</translation>
    </message>
    <message>
        <source>A marker cannot go on a transition: select a clip or nothing.</source>
        <translation>Un marqueur ne peut pas aller sur une transition : sélectionnez un clip ou rien.</translation>
    </message>
    <message>
        <source>There is already a marker at the playhead.</source>
        <translation>Il y a déjà un marqueur à la tête de lecture.</translation>
    </message>
    <message>
        <source>Select a marker first: click its flag above the ruler.</source>
        <translation>Sélectionnez d’abord un marqueur : cliquez sur son drapeau au-dessus de la règle.</translation>
    </message>
    <message>
        <source>There is no marker at the playhead to edit.</source>
        <translation>Il n’y a pas de marqueur à modifier à la tête de lecture.</translation>
    </message>
    <message>
        <source>Select a picture clip to add a keyframe.</source>
        <translation>Sélectionnez un clip d’image pour ajouter une image clé.</translation>
    </message>
    <message>
        <source>The selected clips have no sound keyframes.</source>
        <translation>Les clips sélectionnés n’ont pas d’images clés audio.</translation>
    </message>
    <message>
        <source>The selected clips have no picture keyframes.</source>
        <translation>Les clips sélectionnés n’ont pas d’images clés vidéo.</translation>
    </message>
    <message>
        <source>The virtual playhead is already open.</source>
        <translation>La tête de lecture virtuelle est déjà ouverte.</translation>
    </message>
    <message>
        <source>This timeline has no virtual playhead.</source>
        <translation>Cette timeline n’a pas de tête de lecture virtuelle.</translation>
    </message>
    <message>
        <source>The virtual playhead is not open.</source>
        <translation>La tête de lecture virtuelle n’est pas ouverte.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Il n’y a rien à annuler.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Il n’y a rien à rétablir.</translation>
    </message>
    <message>
        <source>Copy or cut something first.</source>
        <translation>Copiez ou coupez d’abord quelque chose.</translation>
    </message>
    <message>
        <source>Select the clips to put the copied transition on.</source>
        <translation>Sélectionnez les clips où placer la transition copiée.</translation>
    </message>
    <message>
        <source>Select the clips or the transition to cut.</source>
        <translation>Sélectionnez les clips ou la transition à couper.</translation>
    </message>
    <message>
        <source>Select the clips or the transition to copy.</source>
        <translation>Sélectionnez les clips ou la transition à copier.</translation>
    </message>
    <message>
        <source>Select a clip with sound to mute it.</source>
        <translation>Sélectionnez un clip avec du son pour le rendre muet.</translation>
    </message>
    <message>
        <source>Select a video clip with its sound to detach the audio.</source>
        <translation>Sélectionnez un clip vidéo avec son pour en détacher l’audio.</translation>
    </message>
    <message>
        <source>Select a remixed music clip first.</source>
        <translation>Sélectionnez d’abord un clip musical remixé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no remix.</source>
        <translation>« %1 » n’a pas de remix.</translation>
    </message>
    <message>
        <source>Select a compound clip to open it.</source>
        <translation>Sélectionnez un clip composé pour l’ouvrir.</translation>
    </message>
    <message>
        <source>There is no empty track besides the ones that always stay.</source>
        <translation>Il n’y a pas de piste vide en dehors de celles qui restent toujours.</translation>
    </message>
    <message>
        <source>Select one clip to copy its effects.</source>
        <translation>Sélectionnez un clip pour copier ses effets.</translation>
    </message>
    <message>
        <source>“%1” has no effects to copy.</source>
        <translation>« %1 » n’a pas d’effets à copier.</translation>
    </message>
    <message>
        <source>Copy the effects of a clip first.</source>
        <translation>Copiez d’abord les effets d’un clip.</translation>
    </message>
    <message>
        <source>Select the clips to paste the effects onto.</source>
        <translation>Sélectionnez les clips où coller les effets.</translation>
    </message>
    <message>
        <source>Select the clips whose effects are to go.</source>
        <translation>Sélectionnez les clips dont les effets doivent partir.</translation>
    </message>
    <message>
        <source>The selected clips have no effects.</source>
        <translation>Les clips sélectionnés n’ont pas d’effets.</translation>
    </message>
    <message>
        <source>Select the clips first.</source>
        <translation>Sélectionnez d’abord les clips.</translation>
    </message>
</context>
<context>
    <name>MvDemoScene</name>
    <message>
        <source>scene: %1</source>
        <translation>scène : %1</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>to frame %1</source>
        <translation>vers l’image %1</translation>
    </message>
    <message>
        <source>scene: %1: %2</source>
        <translation>scène : %1 : %2</translation>
    </message>
    <message>
        <source>split and keep the groups</source>
        <translation>couper et garder les groupes</translation>
    </message>
    <message>
        <source>Split grouped clips</source>
        <translation>Couper des clips groupés</translation>
    </message>
    <message>
        <source>Some of the clips to split belong to a group. Ungroup them before splitting?</source>
        <translation>Certains des clips à couper appartiennent à un groupe. Les dissocier avant de couper ?</translation>
    </message>
    <message>
        <source>Ungroup and Split</source>
        <translation>Dissocier et couper</translation>
    </message>
    <message>
        <source>Split and Keep Groups</source>
        <translation>Couper et garder les groupes</translation>
    </message>
    <message>
        <source>ungroup and split</source>
        <translation>dissocier et couper</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>replace the audio effect of %1</source>
        <translation>remplacer l’effet audio de %1</translation>
    </message>
    <message>
        <source>Replace audio effect</source>
        <translation>Remplacer l’effet audio</translation>
    </message>
    <message>
        <source>%1 already plays through an audio effect, and a clip has room for one only. Replace it?</source>
        <translation>%1 passe déjà par un effet audio, et un clip n’en accepte qu’un. Le remplacer ?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>keep the audio effect of %1</source>
        <translation>garder l’effet audio de %1</translation>
    </message>
</context>
<context>
    <name>MvDemoTimelineWindow</name>
    <message>
        <source>command in %1: %2</source>
        <translation>commande dans %1 : %2</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Dupliquer</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Close &amp;Window</source>
        <translation>&amp;Fermer la fenêtre</translation>
    </message>
</context>
<context>
    <name>MvDemoTrackArea</name>
    <message>
        <source>Unnamed marker</source>
        <translation>Marqueur sans nom</translation>
    </message>
    <message>
        <source>%1 (rotated %2°)</source>
        <translation>%1 (pivoté de %2°)</translation>
    </message>
    <message>
        <source>virtual playhead</source>
        <translation>tête de lecture virtuelle</translation>
    </message>
    <message>
        <source>%1 (remixed)</source>
        <translation>%1 (remixé)</translation>
    </message>
</context>
<context>
    <name>MvDemoTrackHeaders</name>
    <message>
        <source>Audio %1</source>
        <translation>Audio %1</translation>
    </message>
    <message>
        <source>Video %1</source>
        <translation>Vidéo %1</translation>
    </message>
    <message>
        <source>Show the track again before switching its sound.</source>
        <translation>Réaffichez la piste avant de changer son son.</translation>
    </message>
</context>
<context>
    <name>MvDemoTransitionsDock</name>
    <message>
        <source>Transitions</source>
        <translation>Transitions</translation>
    </message>
    <message>
        <source>%1 (sound)</source>
        <translation>%1 (son)</translation>
    </message>
    <message>
        <source>%1 - downloaded when first used</source>
        <translation>%1 – téléchargé à la première utilisation</translation>
    </message>
    <message>
        <source> frames</source>
        <translation> images</translation>
    </message>
    <message>
        <source>the item&apos;s own</source>
        <translation>celle de l’élément</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Durée :</translation>
    </message>
    <message>
        <source>Apply to Selection</source>
        <translation>Appliquer à la sélection</translation>
    </message>
    <message>
        <source>Random Transitions</source>
        <translation>Transitions aléatoires</translation>
    </message>
</context>
<context>
    <name>MvDemoUndoWords</name>
    <message>
        <source>Add Audio Keyframe</source>
        <translation>Ajouter une image clé audio</translation>
    </message>
    <message>
        <source>Add Clip</source>
        <translation>Ajouter un clip</translation>
    </message>
    <message>
        <source>Add Keyframe</source>
        <translation>Ajouter une image clé</translation>
    </message>
    <message>
        <source>Add Freeze Frame</source>
        <translation>Ajouter un arrêt sur image</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation>Ajouter un marqueur</translation>
    </message>
    <message>
        <source>Add Media</source>
        <translation>Ajouter des médias</translation>
    </message>
    <message>
        <source>Add Text Layer</source>
        <translation>Ajouter un calque de texte</translation>
    </message>
    <message>
        <source>Add Track</source>
        <translation>Ajouter une piste</translation>
    </message>
    <message>
        <source>Add Transition</source>
        <translation>Ajouter une transition</translation>
    </message>
    <message>
        <source>Change Frame Rate</source>
        <translation>Changer la fréquence d’images</translation>
    </message>
    <message>
        <source>Clear All Keyframes</source>
        <translation>Effacer toutes les images clés</translation>
    </message>
    <message>
        <source>Clear Selected Keyframes</source>
        <translation>Effacer les images clés sélectionnées</translation>
    </message>
    <message>
        <source>Delete Clips</source>
        <translation>Supprimer les clips</translation>
    </message>
    <message>
        <source>Disable Clip</source>
        <translation>Désactiver le clip</translation>
    </message>
    <message>
        <source>Edit Marker</source>
        <translation>Modifier le marqueur</translation>
    </message>
    <message>
        <source>Enable Clip</source>
        <translation>Activer le clip</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grouper</translation>
    </message>
    <message>
        <source>Lock Track</source>
        <translation>Verrouiller la piste</translation>
    </message>
    <message>
        <source>Move Clips</source>
        <translation>Déplacer les clips</translation>
    </message>
    <message>
        <source>Add Keyframes</source>
        <translation>Ajouter des images clés</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Paste Keyframes</source>
        <translation>Coller les images clés</translation>
    </message>
    <message>
        <source>Remove Freeze Frame</source>
        <translation>Retirer l’arrêt sur image</translation>
    </message>
    <message>
        <source>Remove Keyframes</source>
        <translation>Retirer les images clés</translation>
    </message>
    <message>
        <source>Remove Marker</source>
        <translation>Retirer le marqueur</translation>
    </message>
    <message>
        <source>Remove Smart Keying Node</source>
        <translation>Retirer le nœud d’incrustation intelligente</translation>
    </message>
    <message>
        <source>Remove Transition</source>
        <translation>Retirer la transition</translation>
    </message>
    <message>
        <source>Rename Clip</source>
        <translation>Renommer le clip</translation>
    </message>
    <message>
        <source>Ripple Delete Clips</source>
        <translation>Supprimer les clips et refermer l’espace</translation>
    </message>
    <message>
        <source>Rotate Clip</source>
        <translation>Faire pivoter le clip</translation>
    </message>
    <message>
        <source>Change Compound Content</source>
        <translation>Modifier le contenu du clip composé</translation>
    </message>
    <message>
        <source>Change Motion Tracking</source>
        <translation>Modifier le suivi de mouvement</translation>
    </message>
    <message>
        <source>Replace Resource</source>
        <translation>Remplacer la ressource</translation>
    </message>
    <message>
        <source>Smart Keying</source>
        <translation>Incrustation intelligente</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Trim End</source>
        <translation>Rogner la fin</translation>
    </message>
    <message>
        <source>Trim Start</source>
        <translation>Rogner le début</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>Unlock Track</source>
        <translation>Déverrouiller la piste</translation>
    </message>
    <message>
        <source>Detach Audio</source>
        <translation>Détacher l’audio</translation>
    </message>
    <message>
        <source>Mute Clips</source>
        <translation>Rendre les clips muets</translation>
    </message>
    <message>
        <source>Clear Empty Tracks</source>
        <translation>Supprimer les pistes vides</translation>
    </message>
    <message>
        <source>Clear Remix</source>
        <translation>Effacer le remix</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Hide Track</source>
        <translation>Masquer la piste</translation>
    </message>
    <message>
        <source>Mute Clip</source>
        <translation>Rendre le clip muet</translation>
    </message>
    <message>
        <source>Mute Track</source>
        <translation>Rendre la piste muette</translation>
    </message>
    <message>
        <source>Paste Transitions</source>
        <translation>Coller les transitions</translation>
    </message>
    <message>
        <source>Remix</source>
        <translation>Remix</translation>
    </message>
    <message>
        <source>Show Track</source>
        <translation>Afficher la piste</translation>
    </message>
    <message>
        <source>Unmute Clip</source>
        <translation>Rétablir le son du clip</translation>
    </message>
    <message>
        <source>Unmute Track</source>
        <translation>Rétablir le son de la piste</translation>
    </message>
    <message>
        <source>Add Effect</source>
        <translation>Ajouter un effet</translation>
    </message>
    <message>
        <source>Add Effects</source>
        <translation>Ajouter des effets</translation>
    </message>
    <message>
        <source>Change Clip Data</source>
        <translation>Modifier les données du clip</translation>
    </message>
    <message>
        <source>Paste Effects</source>
        <translation>Coller les effets</translation>
    </message>
    <message>
        <source>Random Transitions</source>
        <translation>Transitions aléatoires</translation>
    </message>
    <message>
        <source>Remove Effects</source>
        <translation>Retirer les effets</translation>
    </message>
    <message>
        <source>Change Media Handles</source>
        <translation>Modifier les marges du média</translation>
    </message>
    <message>
        <source>Change Transition Length</source>
        <translation>Modifier la durée de la transition</translation>
    </message>
</context>
<context>
    <name>MvDemoWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>Play / Pause</source>
        <translation>Lecture / Pause</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <translation>&amp;Clip</translation>
    </message>
    <message>
        <source>&amp;Split at Playhead</source>
        <translation>&amp;Couper à la tête de lecture</translation>
    </message>
    <message>
        <source>Trim &amp;Start to Playhead</source>
        <translation>Rogner le &amp;début jusqu’à la tête de lecture</translation>
    </message>
    <message>
        <source>Trim &amp;End to Playhead</source>
        <translation>Rogner la &amp;fin depuis la tête de lecture</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Ripple Delete</source>
        <translation>Supprimer et &amp;refermer</translation>
    </message>
    <message>
        <source>Move One Frame &amp;Left</source>
        <translation>Déplacer d’une image à &amp;gauche</translation>
    </message>
    <message>
        <source>Move One Frame R&amp;ight</source>
        <translation>Déplacer d’une image à &amp;droite</translation>
    </message>
    <message>
        <source>Move One Second Left</source>
        <translation>Déplacer d’une seconde à gauche</translation>
    </message>
    <message>
        <source>Move One Second Right</source>
        <translation>Déplacer d’une seconde à droite</translation>
    </message>
    <message>
        <source>Move One Track &amp;Up</source>
        <translation>Monter d’une &amp;piste</translation>
    </message>
    <message>
        <source>Move One Track Do&amp;wn</source>
        <translation>Descendre d’une pi&amp;ste</translation>
    </message>
    <message>
        <source>Rotate 90° Clockwise</source>
        <translation>Faire pivoter de 90° dans le sens horaire</translation>
    </message>
    <message>
        <source>Rotate 90° Counterclockwise</source>
        <translation>Faire pivoter de 90° dans le sens antihoraire</translation>
    </message>
    <message>
        <source>&amp;Go to Selected Clip</source>
        <translation>&amp;Aller au clip sélectionné</translation>
    </message>
    <message>
        <source>&amp;Markers</source>
        <translation>&amp;Marqueurs</translation>
    </message>
    <message>
        <source>&amp;Add Marker</source>
        <translation>&amp;Ajouter un marqueur</translation>
    </message>
    <message>
        <source>&amp;Remove Selected Marker</source>
        <translation>&amp;Retirer le marqueur sélectionné</translation>
    </message>
    <message>
        <source>&amp;Edit Marker at Playhead...</source>
        <translation>&amp;Modifier le marqueur à la tête de lecture…</translation>
    </message>
    <message>
        <source>&amp;Keyframes</source>
        <translation>&amp;Images clés</translation>
    </message>
    <message>
        <source>&amp;Add Keyframe</source>
        <translation>&amp;Ajouter une image clé</translation>
    </message>
    <message>
        <source>&amp;Previous Keyframe</source>
        <translation>Image clé &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Next Keyframe</source>
        <translation>Image clé &amp;suivante</translation>
    </message>
    <message>
        <source>Clear All &amp;Video Keyframes</source>
        <translation>Effacer toutes les images clés &amp;vidéo</translation>
    </message>
    <message>
        <source>Clear All A&amp;udio Keyframes</source>
        <translation>Effacer toutes les images clés a&amp;udio</translation>
    </message>
    <message>
        <source>&amp;Virtual Playhead</source>
        <translation>Tête de lecture &amp;virtuelle</translation>
    </message>
    <message>
        <source>&amp;Open Virtual Playhead</source>
        <translation>&amp;Ouvrir la tête de lecture virtuelle</translation>
    </message>
    <message>
        <source>&amp;Close Virtual Playhead</source>
        <translation>&amp;Fermer la tête de lecture virtuelle</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>&amp;Ajuster à la fenêtre</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>Small Tracks</source>
        <translation>Petites pistes</translation>
    </message>
    <message>
        <source>Normal Tracks</source>
        <translation>Pistes normales</translation>
    </message>
    <message>
        <source>Large Tracks</source>
        <translation>Grandes pistes</translation>
    </message>
    <message>
        <source>S&amp;nap to Playhead, Edges and Markers</source>
        <translation>&amp;Magnétisme : tête de lecture, bords et marqueurs</translation>
    </message>
    <message>
        <source>&amp;Lock Track</source>
        <translation>&amp;Verrouiller la piste</translation>
    </message>
    <message>
        <source>Small Row</source>
        <translation>Petite rangée</translation>
    </message>
    <message>
        <source>Normal Row</source>
        <translation>Rangée normale</translation>
    </message>
    <message>
        <source>Large Row</source>
        <translation>Grande rangée</translation>
    </message>
    <message>
        <source>project media: the shared assets of the new clip are in the project</source>
        <translation>médias du projet : les ressources partagées du nouveau clip sont dans le projet</translation>
    </message>
    <message>
        <source>project media: the shared assets of %1 new clips are in the project</source>
        <translation>médias du projet : les ressources partagées de %1 nouveaux clips sont dans le projet</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Médias</translation>
    </message>
    <message>
        <source>&amp;Add to Timeline</source>
        <translation>&amp;Ajouter à la timeline</translation>
    </message>
    <message>
        <source>Choose an item in the Media panel first.</source>
        <translation>Choisissez d’abord un élément dans le panneau Médias.</translation>
    </message>
    <message>
        <source>add media: %1 at frame %2</source>
        <translation>ajout de média : %1 à l’image %2</translation>
    </message>
    <message>
        <source>add media: %1 at frame %2 on row %3</source>
        <translation>ajout de média : %1 à l’image %2 sur la rangée %3</translation>
    </message>
    <message>
        <source>%1 was not downloaded.</source>
        <translation>%1 n’a pas été téléchargé.</translation>
    </message>
    <message>
        <source>No resolution was chosen for %1.</source>
        <translation>Aucune résolution n’a été choisie pour %1.</translation>
    </message>
    <message>
        <source>%1 could not be read in time.</source>
        <translation>%1 n’a pas pu être lu à temps.</translation>
    </message>
    <message>
        <source>%1 is empty: there is nothing to add.</source>
        <translation>%1 est vide : il n’y a rien à ajouter.</translation>
    </message>
    <message>
        <source>%1 could not be added.</source>
        <translation>%1 n’a pas pu être ajouté.</translation>
    </message>
    <message>
        <source>P&amp;anels</source>
        <translation>Pa&amp;nneaux</translation>
    </message>
    <message>
        <source>Find &amp;Similar</source>
        <translation>Rechercher des &amp;similaires</translation>
    </message>
    <message>
        <source>Select All &amp;Texts</source>
        <translation>Sélectionner tous les &amp;textes</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Propriétés</translation>
    </message>
    <message>
        <source>Advanced &amp;Edit...</source>
        <translation>Édition &amp;avancée…</translation>
    </message>
    <message>
        <source>Advanced &amp;Colour...</source>
        <translation>&amp;Couleur avancée…</translation>
    </message>
    <message>
        <source>&amp;Animation</source>
        <translation>A&amp;nimation</translation>
    </message>
    <message>
        <source>Audio Panel of the Picked &amp;Keyframe</source>
        <translation>Panneau audio de l’image &amp;clé choisie</translation>
    </message>
    <message>
        <source>&amp;Hide Properties</source>
        <translation>&amp;Masquer les propriétés</translation>
    </message>
    <message>
        <source>%1[*] - MvTimeline Demo</source>
        <translation>%1[*] – Démo MvTimeline</translation>
    </message>
    <message>
        <source>A day by the sea</source>
        <translation>Une journée au bord de la mer</translation>
    </message>
    <message>
        <source>Command journal</source>
        <translation>Journal des commandes</translation>
    </message>
    <message>
        <source>command: %1</source>
        <translation>commande : %1</translation>
    </message>
    <message>
        <source>drag: move the selection by %1 frames and %2 rows</source>
        <translation>glisser : déplacer la sélection de %1 images et %2 rangées</translation>
    </message>
    <message>
        <source>The clips cannot move there.</source>
        <translation>Les clips ne peuvent pas aller là.</translation>
    </message>
    <message>
        <source>refused: %1</source>
        <translation>refusé : %1</translation>
    </message>
    <message>
        <source>%1 is not available now.</source>
        <translation>%1 n’est pas disponible pour l’instant.</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler : %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir : %1</translation>
    </message>
    <message>
        <source>Playhead %1 (frame %2)   Selected items: %3   Undo steps: %4</source>
        <translation>Tête de lecture %1 (image %2)   Éléments sélectionnés : %3   Étapes d’annulation : %4</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>D&amp;upliquer</translation>
    </message>
    <message>
        <source>&amp;Hide Track</source>
        <translation>&amp;Masquer la piste</translation>
    </message>
    <message>
        <source>&amp;Mute Track</source>
        <translation>Rendre la piste &amp;muette</translation>
    </message>
    <message>
        <source>&amp;Mute Clips</source>
        <translation>Rendre les clips &amp;muets</translation>
    </message>
    <message>
        <source>Detach &amp;Audio</source>
        <translation>Détacher l’&amp;audio</translation>
    </message>
    <message>
        <source>Clear Re&amp;mix</source>
        <translation>Effacer le re&amp;mix</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>&amp;Timeline</translation>
    </message>
    <message>
        <source>Clear &amp;Empty Tracks</source>
        <translation>Supprimer les pistes &amp;vides</translation>
    </message>
    <message>
        <source>&amp;Open Compound Clip</source>
        <translation>&amp;Ouvrir le clip composé</translation>
    </message>
    <message>
        <source>Open Another &amp;Project&apos;s Timeline</source>
        <translation>Ouvrir la timeline d’un autre &amp;projet</translation>
    </message>
    <message>
        <source>%1 (another project)</source>
        <translation>%1 (autre projet)</translation>
    </message>
    <message>
        <source>Un&amp;mute Clips</source>
        <translation>Rétablir le son des &amp;clips</translation>
    </message>
    <message>
        <source>&amp;Silence Track</source>
        <translation>&amp;Couper le son de la piste</translation>
    </message>
    <message>
        <source>&amp;Hear Track</source>
        <translation>&amp;Entendre la piste</translation>
    </message>
    <message>
        <source>&amp;Show Track</source>
        <translation>&amp;Afficher la piste</translation>
    </message>
    <message>
        <source>Un&amp;mute Track</source>
        <translation>Rétablir le son de la &amp;piste</translation>
    </message>
    <message>
        <source>track picked: %1</source>
        <translation>piste choisie : %1</translation>
    </message>
    <message>
        <source>no track picked</source>
        <translation>aucune piste choisie</translation>
    </message>
    <message>
        <source>%1 (compound clip)</source>
        <translation>%1 (clip composé)</translation>
    </message>
    <message>
        <source>Select the clips first.</source>
        <translation>Sélectionnez d’abord les clips.</translation>
    </message>
    <message>
        <source>Choose an effect in the Effects panel first.</source>
        <translation>Choisissez d’abord un effet dans le panneau Effets.</translation>
    </message>
    <message>
        <source>“%1” is a sound effect: it needs a clip with sound on an unlocked track.</source>
        <translation>« %1 » est un effet sonore : il lui faut un clip avec son sur une piste non verrouillée.</translation>
    </message>
    <message>
        <source>“%1” changes the picture: it needs a clip with a picture of its own on an unlocked track.</source>
        <translation>« %1 » modifie l’image : il lui faut un clip avec sa propre image sur une piste non verrouillée.</translation>
    </message>
    <message>
        <source>drop: effect “%1” on “%2”</source>
        <translation>dépôt : effet « %1 » sur « %2 »</translation>
    </message>
    <message>
        <source>start</source>
        <translation>début</translation>
    </message>
    <message>
        <source>end</source>
        <translation>fin</translation>
    </message>
    <message>
        <source>drop: transition “%1” on the %2 of “%3”</source>
        <translation>dépôt : transition « %1 » sur le/la %2 de « %3 »</translation>
    </message>
    <message>
        <source>effect “%1” applied</source>
        <translation>effet « %1 » appliqué</translation>
    </message>
    <message numerus="yes">
        <source>%n transition(s) placed</source>
        <translation>
            <numerusform>%n transition placée</numerusform>
            <numerusform>%n transitions placées</numerusform>
        </translation>
    </message>
    <message>
        <source>Effe&amp;cts</source>
        <translation>Effe&amp;ts</translation>
    </message>
    <message>
        <source>Apply &amp;Transition to Selection</source>
        <translation>Appliquer la &amp;transition à la sélection</translation>
    </message>
    <message>
        <source>&amp;Random Transitions</source>
        <translation>Transitions &amp;aléatoires</translation>
    </message>
    <message>
        <source>Apply &amp;Effect to Selection</source>
        <translation>Appliquer l’&amp;effet à la sélection</translation>
    </message>
    <message>
        <source>&amp;Copy Effects</source>
        <translation>&amp;Copier les effets</translation>
    </message>
    <message>
        <source>&amp;Paste Effects</source>
        <translation>C&amp;oller les effets</translation>
    </message>
    <message>
        <source>&amp;Delete Effects</source>
        <translation>&amp;Supprimer les effets</translation>
    </message>
</context>
</TS>
