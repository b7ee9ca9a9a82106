<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>MvDemoCommandLine</name>
    <message>
        <source>Play the built-in scenario, save screenshots and the journal, then quit.</source>
        <translation>Das eingebaute Szenario abspielen, Bildschirmfotos und Protokoll speichern, dann beenden.</translation>
    </message>
    <message>
        <source>Folder for the scenario&apos;s files.</source>
        <translation>Ordner für die Dateien des Szenarios.</translation>
    </message>
    <message>
        <source>dir</source>
        <translation>ordner</translation>
    </message>
    <message>
        <source>Print the library&apos;s detail and note records too, not only its warnings and refusals.</source>
        <translation>Auch die Detail- und Hinweiseinträge der Bibliothek ausgeben, nicht nur ihre Warnungen und Ablehnungen.</translation>
    </message>
    <message>
        <source>Show the demo in this language (for instance de or fr) instead of the system&apos;s.</source>
        <translation>Die Demo in dieser Sprache zeigen (etwa de oder fr) statt in der des Systems.</translation>
    </message>
    <message>
        <source>language</source>
        <translation>sprache</translation>
    </message>
    <message>
        <source>MvTimeline demo editor</source>
        <translation>MvTimeline-Demo-Editor</translation>
    </message>
</context>
<context>
    <name>MvDemoEffectsDock</name>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>%1 (sound)</source>
        <translation>%1 (Ton)</translation>
    </message>
    <message>
        <source>Apply to Selection</source>
        <translation>Auf Auswahl anwenden</translation>
    </message>
</context>
<context>
    <name>MvDemoJournalWords</name>
    <message>
        <source>ask whether to ungroup before splitting</source>
        <translation>fragen, ob vor dem Teilen die Gruppierung aufgehoben wird</translation>
    </message>
    <message>
        <source>switch the player to this timeline</source>
        <translation>den Player auf diese Zeitleiste umschalten</translation>
    </message>
    <message>
        <source>effects pasted, update the player</source>
        <translation>Effekte eingefügt, Player aktualisieren</translation>
    </message>
    <message>
        <source>pause player</source>
        <translation>Player anhalten</translation>
    </message>
    <message>
        <source>stop player</source>
        <translation>Player stoppen</translation>
    </message>
    <message>
        <source>ask whether the player is playing</source>
        <translation>fragen, ob der Player abspielt</translation>
    </message>
    <message>
        <source>pause player and wait for it</source>
        <translation>Player anhalten und darauf warten</translation>
    </message>
    <message>
        <source>seek</source>
        <translation>springen</translation>
    </message>
    <message>
        <source>seek once paused</source>
        <translation>nach dem Anhalten springen</translation>
    </message>
    <message>
        <source>hide the property panel</source>
        <translation>das Eigenschaftenfenster ausblenden</translation>
    </message>
    <message>
        <source>show a page of the property panel</source>
        <translation>eine Seite des Eigenschaftenfensters zeigen</translation>
    </message>
    <message>
        <source>open the advanced subtitle editor</source>
        <translation>den erweiterten Untertitel-Editor öffnen</translation>
    </message>
    <message>
        <source>open the advanced text editor</source>
        <translation>den erweiterten Texteditor öffnen</translation>
    </message>
    <message>
        <source>open the advanced colour panel</source>
        <translation>das erweiterte Farbfenster öffnen</translation>
    </message>
    <message>
        <source>open the advanced title editor</source>
        <translation>den erweiterten Titel-Editor öffnen</translation>
    </message>
    <message>
        <source>effects deleted</source>
        <translation>Effekte gelöscht</translation>
    </message>
    <message>
        <source>effects pasted</source>
        <translation>Effekte eingefügt</translation>
    </message>
    <message>
        <source>show the property panel</source>
        <translation>das Eigenschaftenfenster zeigen</translation>
    </message>
    <message>
        <source>find similar resources in the media library</source>
        <translation>ähnliche Ressourcen in der Medienbibliothek suchen</translation>
    </message>
    <message>
        <source>select clips in the media editor</source>
        <translation>Clips im Medieneditor auswählen</translation>
    </message>
    <message>
        <source>download media items</source>
        <translation>Medien herunterladen</translation>
    </message>
    <message>
        <source>choose the resolution of stock items</source>
        <translation>die Auflösung von Stock-Medien wählen</translation>
    </message>
    <message>
        <source>choose the resolution of a VCG item</source>
        <translation>die Auflösung eines VCG-Mediums wählen</translation>
    </message>
    <message>
        <source>offer the media&apos;s settings to the project</source>
        <translation>dem Projekt die Einstellungen des Mediums anbieten</translation>
    </message>
    <message>
        <source>media added</source>
        <translation>Medien hinzugefügt</translation>
    </message>
    <message>
        <source>bring the new clips into view</source>
        <translation>die neuen Clips ins Bild holen</translation>
    </message>
    <message>
        <source>message %1</source>
        <translation>Nachricht %1</translation>
    </message>
    <message>
        <source>refusal</source>
        <translation>Ablehnung</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>detail</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>library %1: %2 (%3)</source>
        <translation>Bibliothek %1: %2 (%3)</translation>
    </message>
    <message>
        <source>ask whether to replace an audio effect</source>
        <translation>fragen, ob ein Audioeffekt ersetzt wird</translation>
    </message>
</context>
<context>
    <name>MvDemoLibraryDock</name>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Find Similar asks the media library for resources like the one a clip was made from. The library&apos;s answers would be listed here; the requests are:</source>
        <translation>„Ähnliche suchen“ fragt die Medienbibliothek nach Ressourcen wie der, aus der ein Clip entstand. Die Antworten der Bibliothek stünden hier; die Anfragen sind:</translation>
    </message>
    <message>
        <source>Similar to “%1” on the %2 shelf (resource %3, %4, library %5)</source>
        <translation>Ähnlich wie „%1“ im Regal %2 (Ressource %3, %4, Bibliothek %5)</translation>
    </message>
</context>
<context>
    <name>MvDemoMarkerDialogStyle</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>MvDemoMediaPanel</name>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Double-click or drag onto a track to add.</source>
        <translation>Doppelklicken oder auf eine Spur ziehen, um es hinzuzufügen.</translation>
    </message>
    <message>
        <source>Add to Timeline</source>
        <translation>Zur Zeitleiste hinzufügen</translation>
    </message>
</context>
<context>
    <name>MvDemoMediaScene</name>
    <message>
        <source>downloaded one item</source>
        <translation>ein Medium heruntergeladen</translation>
    </message>
    <message>
        <source>downloaded %1 items</source>
        <translation>%1 Medien heruntergeladen</translation>
    </message>
    <message>
        <source>added %1 as one clip</source>
        <translation>%1 als ein Clip hinzugefügt</translation>
    </message>
    <message>
        <source>added %1 as %2 clips</source>
        <translation>%1 als %2 Clips hinzugefügt</translation>
    </message>
    <message>
        <source>the new clip brought into view</source>
        <translation>der neue Clip ist im Bild</translation>
    </message>
    <message>
        <source>%1 new clips brought into view</source>
        <translation>%1 neue Clips sind im Bild</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>%1 wird heruntergeladen …</translation>
    </message>
    <message>
        <source>download cancelled: %1 of %2 fetched, %3 stays online</source>
        <translation>Herunterladen abgebrochen: %1 von %2 geholt, %3 bleibt online</translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 ausgelassen</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Choose a Resolution</source>
        <translation>Auflösung wählen</translation>
    </message>
    <message>
        <source>“%1” comes in these resolutions:</source>
        <translation>„%1“ gibt es in diesen Auflösungen:</translation>
    </message>
    <message>
        <source>Use This Resolution</source>
        <translation>Diese Auflösung verwenden</translation>
    </message>
    <message>
        <source>Project Settings</source>
        <translation>Projekteinstellungen</translation>
    </message>
    <message>
        <source>nothing to match</source>
        <translation>nichts anzugleichen</translation>
    </message>
    <message>
        <source>the project already runs at %1 fps</source>
        <translation>das Projekt läuft schon mit %1 fps</translation>
    </message>
    <message>
        <source>%1 runs at %2 fps; the project runs at %3 fps. Change the project to %2 fps?</source>
        <translation>%1 läuft mit %2 fps, das Projekt mit %3 fps. Projekt auf %2 fps umstellen?</translation>
    </message>
    <message>
        <source>Change to %1 fps</source>
        <translation>Auf %1 fps umstellen</translation>
    </message>
    <message>
        <source>Keep %1 fps</source>
        <translation>%1 fps beibehalten</translation>
    </message>
    <message>
        <source>the project keeps %1 fps</source>
        <translation>das Projekt bleibt bei %1 fps</translation>
    </message>
    <message>
        <source>the project now runs at %1 fps</source>
        <translation>das Projekt läuft jetzt mit %1 fps</translation>
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
        <translation>Bild</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Screen recording</source>
        <translation>Bildschirmaufnahme</translation>
    </message>
    <message>
        <source>Compound</source>
        <translation>Zusammengesetzt</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>%1, read on first use</source>
        <translation>%1, wird bei der ersten Verwendung gelesen</translation>
    </message>
    <message>
        <source>%1, %2 s</source>
        <translation>%1, %2 s</translation>
    </message>
    <message>
        <source>%1, still recording</source>
        <translation>%1, Aufnahme läuft noch</translation>
    </message>
    <message>
        <source>%1, empty</source>
        <translation>%1, leer</translation>
    </message>
    <message>
        <source>, %1 fps</source>
        <translation>, %1 fps</translation>
    </message>
</context>
<context>
    <name>MvDemoPropertiesDock</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Video keyframes: pick one to go there</source>
        <translation>Video-Keyframes: einen wählen, um dorthin zu springen</translation>
    </message>
    <message>
        <source>Audio keyframes: pick one to go there</source>
        <translation>Audio-Keyframes: einen wählen, um dorthin zu springen</translation>
    </message>
    <message>
        <source>the Properties dock is hidden</source>
        <translation>das Eigenschaftenfenster ist ausgeblendet</translation>
    </message>
    <message>
        <source>selected in the text editor: %1</source>
        <translation>im Texteditor ausgewählt: %1</translation>
    </message>
    <message>
        <source>Properties dock shows: %1</source>
        <translation>Eigenschaftenfenster zeigt: %1</translation>
    </message>
    <message>
        <source>keyframe panel: Properties dock shows: %1</source>
        <translation>Keyframe-Bereich: Eigenschaftenfenster zeigt: %1</translation>
    </message>
    <message>
        <source>%1, rotated %2°</source>
        <translation>%1, um %2° gedreht</translation>
    </message>
    <message>
        <source>Select a picture clip.</source>
        <translation>Einen Bildclip auswählen.</translation>
    </message>
    <message>
        <source>Select a clip with sound.</source>
        <translation>Einen Clip mit Ton auswählen.</translation>
    </message>
    <message>
        <source>Colour grading of “%1”: the editor&apos;s colour wheels and curves would open here.</source>
        <translation>Farbkorrektur von „%1“: Farbräder und Kurven des Editors würden sich hier öffnen.</translation>
    </message>
    <message>
        <source>Select a picture clip to grade its colours.</source>
        <translation>Einen Bildclip auswählen, um seine Farben zu korrigieren.</translation>
    </message>
    <message>
        <source>This selection has no property panel.</source>
        <translation>Für diese Auswahl gibt es kein Eigenschaftenfenster.</translation>
    </message>
    <message>
        <source>The texts of “%1”</source>
        <translation>Die Texte von „%1“</translation>
    </message>
    <message>
        <source>Select a text.</source>
        <translation>Einen Text auswählen.</translation>
    </message>
    <message>
        <source>%1 (secondary)</source>
        <translation>%1 (zweitrangig)</translation>
    </message>
    <message>
        <source>keyframe picked: %1 at %2</source>
        <translation>Keyframe gewählt: %1 bei %2</translation>
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
        <translation>Video</translation>
    </message>
    <message>
        <source>Video with sound</source>
        <translation>Video mit Ton</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effekt</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Adjustment layer</source>
        <translation>Einstellungsebene</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Übergang</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Compound clip</source>
        <translation>Zusammengesetzter Clip</translation>
    </message>
    <message>
        <source>Screen recording</source>
        <translation>Bildschirmaufnahme</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Sound effect</source>
        <translation>Soundeffekt</translation>
    </message>
    <message>
        <source>Kind %1</source>
        <translation>Art %1</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Sound effects</source>
        <translation>Soundeffekte</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Übergänge</translation>
    </message>
    <message>
        <source>no shelf</source>
        <translation>kein Regal</translation>
    </message>
    <message>
        <source>Clip properties</source>
        <translation>Clip-Eigenschaften</translation>
    </message>
    <message>
        <source>Picture properties and video keyframes</source>
        <translation>Bildeigenschaften und Video-Keyframes</translation>
    </message>
    <message>
        <source>Audio properties and audio keyframes</source>
        <translation>Audioeigenschaften und Audio-Keyframes</translation>
    </message>
    <message>
        <source>Advanced text editor</source>
        <translation>Erweiterter Texteditor</translation>
    </message>
    <message>
        <source>Advanced subtitle editor</source>
        <translation>Erweiterter Untertitel-Editor</translation>
    </message>
    <message>
        <source>Advanced title editor</source>
        <translation>Erweiterter Titel-Editor</translation>
    </message>
    <message>
        <source>Advanced colour editor</source>
        <translation>Erweiterter Farbeditor</translation>
    </message>
    <message>
        <source>No properties</source>
        <translation>Keine Eigenschaften</translation>
    </message>
    <message>
        <source>%1 (clip frame %2)</source>
        <translation>%1 (Clip-Frame %2)</translation>
    </message>
    <message>
        <source>Select a clip to see its properties.</source>
        <translation>Einen Clip auswählen, um seine Eigenschaften zu sehen.</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>Name: %1</translation>
    </message>
    <message>
        <source>Kind: %1</source>
        <translation>Art: %1</translation>
    </message>
    <message>
        <source>From %1 to %2 (%3 frames)</source>
        <translation>Von %1 bis %2 (%3 Frames)</translation>
    </message>
    <message>
        <source>Track: %1</source>
        <translation>Spur: %1</translation>
    </message>
    <message>
        <source>Rotation: %1°</source>
        <translation>Drehung: %1°</translation>
    </message>
    <message>
        <source>Library resource: “%1” from library %2%3</source>
        <translation>Bibliotheksressource: „%1“ aus Bibliothek %2%3</translation>
    </message>
    <message>
        <source>, similar resources can be found</source>
        <translation>, ähnliche Ressourcen lassen sich finden</translation>
    </message>
    <message>
        <source>Your own media</source>
        <translation>Eigene Medien</translation>
    </message>
    <message>
        <source>%1 (secondary)</source>
        <translation>%1 (zweitrangig)</translation>
    </message>
    <message>
        <source>Layers: %1</source>
        <translation>Ebenen: %1</translation>
    </message>
    <message>
        <source>Keyframes: %1 video, %2 audio</source>
        <translation>Keyframes: %1 Video, %2 Audio</translation>
    </message>
</context>
<context>
    <name>MvDemoRefusals</name>
    <message>
        <source>Select one clip made from a library resource to find similar ones.</source>
        <translation>Einen Clip aus einer Bibliotheksressource auswählen, um ähnliche zu finden.</translation>
    </message>
    <message>
        <source>“%1” is your own media: the library finds only resources like its own.</source>
        <translation>„%1“ ist ein eigenes Medium: Die Bibliothek findet nur Ressourcen wie ihre eigenen.</translation>
    </message>
    <message>
        <source>The library&apos;s similarity search does not know “%1”.</source>
        <translation>Die Ähnlichkeitssuche der Bibliothek kennt „%1“ nicht.</translation>
    </message>
    <message>
        <source>Select one composed text to select its texts.</source>
        <translation>Einen zusammengesetzten Text auswählen, um seine Texte auszuwählen.</translation>
    </message>
    <message>
        <source>“%1” is not composed of texts.</source>
        <translation>„%1“ besteht nicht aus Texten.</translation>
    </message>
    <message>
        <source>Select a clip first.</source>
        <translation>Zuerst einen Clip auswählen.</translation>
    </message>
    <message>
        <source>Colours are graded on picture clips.</source>
        <translation>Farben werden an Bildclips korrigiert.</translation>
    </message>
    <message>
        <source>Pick a keyframe in the Properties dock first.</source>
        <translation>Zuerst im Eigenschaftenfenster einen Keyframe wählen.</translation>
    </message>
    <message>
        <source>Close the virtual playhead before splitting.</source>
        <translation>Vor dem Teilen den virtuellen Abspielkopf schließen.</translation>
    </message>
    <message>
        <source>There is no clip under the playhead to split.</source>
        <translation>Unter dem Abspielkopf liegt kein Clip zum Teilen.</translation>
    </message>
    <message>
        <source>None of the selected clips is under the playhead.</source>
        <translation>Keiner der ausgewählten Clips liegt unter dem Abspielkopf.</translation>
    </message>
    <message>
        <source>The clips under the playhead are on locked tracks.</source>
        <translation>Die Clips unter dem Abspielkopf liegen auf gesperrten Spuren.</translation>
    </message>
    <message>
        <source>Select one clip to trim.</source>
        <translation>Einen Clip zum Trimmen auswählen.</translation>
    </message>
    <message>
        <source>The selected clip is on a locked track.</source>
        <translation>Der ausgewählte Clip liegt auf einer gesperrten Spur.</translation>
    </message>
    <message>
        <source>Put the playhead inside the selected clip to trim it.</source>
        <translation>Zum Trimmen den Abspielkopf in den ausgewählten Clip setzen.</translation>
    </message>
    <message>
        <source>Select the clips to ripple delete.</source>
        <translation>Die Clips zum Löschen mit Lückenschluss auswählen.</translation>
    </message>
    <message>
        <source>Nothing is selected to delete.</source>
        <translation>Zum Löschen ist nichts ausgewählt.</translation>
    </message>
    <message>
        <source>A selected clip is on a locked track.</source>
        <translation>Ein ausgewählter Clip liegt auf einer gesperrten Spur.</translation>
    </message>
    <message>
        <source>There is no timeline.</source>
        <translation>Es gibt keine Zeitleiste.</translation>
    </message>
    <message>
        <source>Select the clips to move.</source>
        <translation>Die zu verschiebenden Clips auswählen.</translation>
    </message>
    <message>
        <source>The clips already start at the beginning of the timeline.</source>
        <translation>Die Clips beginnen schon am Anfang der Zeitleiste.</translation>
    </message>
    <message>
        <source>There is no track of the clips&apos; kind there.</source>
        <translation>Dort gibt es keine Spur für diese Art von Clips.</translation>
    </message>
    <message>
        <source>The track the clips would move to is locked.</source>
        <translation>Die Zielspur der Clips ist gesperrt.</translation>
    </message>
    <message>
        <source>The clips cannot move before the start of the timeline.</source>
        <translation>Die Clips können nicht vor den Anfang der Zeitleiste verschoben werden.</translation>
    </message>
    <message>
        <source>Another clip is in the way.</source>
        <translation>Ein anderer Clip ist im Weg.</translation>
    </message>
    <message>
        <source>Select a clip to rotate.</source>
        <translation>Einen Clip zum Drehen auswählen.</translation>
    </message>
    <message>
        <source>A marker cannot go on a transition: select a clip or nothing.</source>
        <translation>Auf einen Übergang kann keine Markierung: einen Clip oder nichts auswählen.</translation>
    </message>
    <message>
        <source>There is already a marker at the playhead.</source>
        <translation>Am Abspielkopf ist schon eine Markierung.</translation>
    </message>
    <message>
        <source>Select a marker first: click its flag above the ruler.</source>
        <translation>Zuerst eine Markierung auswählen: auf ihr Fähnchen über dem Lineal klicken.</translation>
    </message>
    <message>
        <source>There is no marker at the playhead to edit.</source>
        <translation>Am Abspielkopf ist keine Markierung zum Bearbeiten.</translation>
    </message>
    <message>
        <source>Select a picture clip to add a keyframe.</source>
        <translation>Einen Bildclip auswählen, um einen Keyframe hinzuzufügen.</translation>
    </message>
    <message>
        <source>The selected clips have no sound keyframes.</source>
        <translation>Die ausgewählten Clips haben keine Audio-Keyframes.</translation>
    </message>
    <message>
        <source>The selected clips have no picture keyframes.</source>
        <translation>Die ausgewählten Clips haben keine Video-Keyframes.</translation>
    </message>
    <message>
        <source>The virtual playhead is already open.</source>
        <translation>Der virtuelle Abspielkopf ist schon geöffnet.</translation>
    </message>
    <message>
        <source>This timeline has no virtual playhead.</source>
        <translation>Diese Zeitleiste hat keinen virtuellen Abspielkopf.</translation>
    </message>
    <message>
        <source>The virtual playhead is not open.</source>
        <translation>Der virtuelle Abspielkopf ist nicht geöffnet.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Es gibt nichts wiederherzustellen.</translation>
    </message>
    <message>
        <source>Copy or cut something first.</source>
        <translation>Zuerst etwas kopieren oder ausschneiden.</translation>
    </message>
    <message>
        <source>Select the clips to put the copied transition on.</source>
        <translation>Die Clips auswählen, auf die der kopierte Übergang soll.</translation>
    </message>
    <message>
        <source>Select the clips or the transition to cut.</source>
        <translation>Die Clips oder den Übergang zum Ausschneiden auswählen.</translation>
    </message>
    <message>
        <source>Select the clips or the transition to copy.</source>
        <translation>Die Clips oder den Übergang zum Kopieren auswählen.</translation>
    </message>
    <message>
        <source>Select a clip with sound to mute it.</source>
        <translation>Einen Clip mit Ton auswählen, um ihn stummzuschalten.</translation>
    </message>
    <message>
        <source>Select a video clip with its sound to detach the audio.</source>
        <translation>Einen Videoclip mit Ton auswählen, um den Ton abzutrennen.</translation>
    </message>
    <message>
        <source>Select a remixed music clip first.</source>
        <translation>Zuerst einen geremixten Musikclip auswählen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no remix.</source>
        <translation>„%1“ hat keinen Remix.</translation>
    </message>
    <message>
        <source>Select a compound clip to open it.</source>
        <translation>Einen zusammengesetzten Clip auswählen, um ihn zu öffnen.</translation>
    </message>
    <message>
        <source>There is no empty track besides the ones that always stay.</source>
        <translation>Außer den festen Spuren gibt es keine leere Spur.</translation>
    </message>
    <message>
        <source>Select one clip to copy its effects.</source>
        <translation>Einen Clip auswählen, um seine Effekte zu kopieren.</translation>
    </message>
    <message>
        <source>“%1” has no effects to copy.</source>
        <translation>„%1“ hat keine Effekte zum Kopieren.</translation>
    </message>
    <message>
        <source>Copy the effects of a clip first.</source>
        <translation>Zuerst die Effekte eines Clips kopieren.</translation>
    </message>
    <message>
        <source>Select the clips to paste the effects onto.</source>
        <translation>Die Clips auswählen, auf die die Effekte eingefügt werden.</translation>
    </message>
    <message>
        <source>Select the clips whose effects are to go.</source>
        <translation>Die Clips auswählen, deren Effekte entfernt werden.</translation>
    </message>
    <message>
        <source>The selected clips have no effects.</source>
        <translation>Die ausgewählten Clips haben keine Effekte.</translation>
    </message>
    <message>
        <source>Select the clips first.</source>
        <translation>Zuerst die Clips auswählen.</translation>
    </message>
</context>
<context>
    <name>MvDemoScene</name>
    <message>
        <source>scene: %1</source>
        <translation>Szene: %1</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>to frame %1</source>
        <translation>zu Frame %1</translation>
    </message>
    <message>
        <source>scene: %1: %2</source>
        <translation>Szene: %1: %2</translation>
    </message>
    <message>
        <source>split and keep the groups</source>
        <translation>teilen und Gruppen behalten</translation>
    </message>
    <message>
        <source>Split grouped clips</source>
        <translation>Gruppierte Clips teilen</translation>
    </message>
    <message>
        <source>Some of the clips to split belong to a group. Ungroup them before splitting?</source>
        <translation>Einige der zu teilenden Clips gehören zu einer Gruppe. Vor dem Teilen die Gruppierung aufheben?</translation>
    </message>
    <message>
        <source>Ungroup and Split</source>
        <translation>Gruppierung aufheben und teilen</translation>
    </message>
    <message>
        <source>Split and Keep Groups</source>
        <translation>Teilen und Gruppen behalten</translation>
    </message>
    <message>
        <source>ungroup and split</source>
        <translation>Gruppierung aufheben und teilen</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>replace the audio effect of %1</source>
        <translation>den Audioeffekt von %1 ersetzen</translation>
    </message>
    <message>
        <source>Replace audio effect</source>
        <translation>Audioeffekt ersetzen</translation>
    </message>
    <message>
        <source>%1 already plays through an audio effect, and a clip has room for one only. Replace it?</source>
        <translation>%1 läuft schon durch einen Audioeffekt, und ein Clip hat nur für einen Platz. Ersetzen?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>keep the audio effect of %1</source>
        <translation>den Audioeffekt von %1 behalten</translation>
    </message>
</context>
<context>
    <name>MvDemoTimelineWindow</name>
    <message>
        <source>command in %1: %2</source>
        <translation>Befehl in %1: %2</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Close &amp;Window</source>
        <translation>&amp;Fenster schließen</translation>
    </message>
</context>
<context>
    <name>MvDemoTrackArea</name>
    <message>
        <source>Unnamed marker</source>
        <translation>Unbenannte Markierung</translation>
    </message>
    <message>
        <source>%1 (rotated %2°)</source>
        <translation>%1 (um %2° gedreht)</translation>
    </message>
    <message>
        <source>virtual playhead</source>
        <translation>virtueller Abspielkopf</translation>
    </message>
    <message>
        <source>%1 (remixed)</source>
        <translation>%1 (geremixt)</translation>
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
        <translation>Video %1</translation>
    </message>
    <message>
        <source>Show the track again before switching its sound.</source>
        <translation>Die Spur erst wieder einblenden, bevor ihr Ton umgeschaltet wird.</translation>
    </message>
</context>
<context>
    <name>MvDemoTransitionsDock</name>
    <message>
        <source>Transitions</source>
        <translation>Übergänge</translation>
    </message>
    <message>
        <source>%1 (sound)</source>
        <translation>%1 (Ton)</translation>
    </message>
    <message>
        <source>%1 - downloaded when first used</source>
        <translation>%1 – wird bei der ersten Verwendung heruntergeladen</translation>
    </message>
    <message>
        <source> frames</source>
        <translation> Frames</translation>
    </message>
    <message>
        <source>the item&apos;s own</source>
        <translation>die eigene des Elements</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Länge:</translation>
    </message>
    <message>
        <source>Apply to Selection</source>
        <translation>Auf Auswahl anwenden</translation>
    </message>
    <message>
        <source>Random Transitions</source>
        <translation>Zufällige Übergänge</translation>
    </message>
</context>
<context>
    <name>MvDemoUndoWords</name>
    <message>
        <source>Add Audio Keyframe</source>
        <translation>Audio-Keyframe hinzufügen</translation>
    </message>
    <message>
        <source>Add Clip</source>
        <translation>Clip hinzufügen</translation>
    </message>
    <message>
        <source>Add Keyframe</source>
        <translation>Keyframe hinzufügen</translation>
    </message>
    <message>
        <source>Add Freeze Frame</source>
        <translation>Standbild hinzufügen</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation>Markierung hinzufügen</translation>
    </message>
    <message>
        <source>Add Media</source>
        <translation>Medien hinzufügen</translation>
    </message>
    <message>
        <source>Add Text Layer</source>
        <translation>Textebene hinzufügen</translation>
    </message>
    <message>
        <source>Add Track</source>
        <translation>Spur hinzufügen</translation>
    </message>
    <message>
        <source>Add Transition</source>
        <translation>Übergang hinzufügen</translation>
    </message>
    <message>
        <source>Change Frame Rate</source>
        <translation>Bildrate ändern</translation>
    </message>
    <message>
        <source>Clear All Keyframes</source>
        <translation>Alle Keyframes entfernen</translation>
    </message>
    <message>
        <source>Clear Selected Keyframes</source>
        <translation>Ausgewählte Keyframes entfernen</translation>
    </message>
    <message>
        <source>Delete Clips</source>
        <translation>Clips löschen</translation>
    </message>
    <message>
        <source>Disable Clip</source>
        <translation>Clip deaktivieren</translation>
    </message>
    <message>
        <source>Edit Marker</source>
        <translation>Markierung bearbeiten</translation>
    </message>
    <message>
        <source>Enable Clip</source>
        <translation>Clip aktivieren</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppieren</translation>
    </message>
    <message>
        <source>Lock Track</source>
        <translation>Spur sperren</translation>
    </message>
    <message>
        <source>Move Clips</source>
        <translation>Clips verschieben</translation>
    </message>
    <message>
        <source>Add Keyframes</source>
        <translation>Keyframes hinzufügen</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste Keyframes</source>
        <translation>Keyframes einfügen</translation>
    </message>
    <message>
        <source>Remove Freeze Frame</source>
        <translation>Standbild entfernen</translation>
    </message>
    <message>
        <source>Remove Keyframes</source>
        <translation>Keyframes entfernen</translation>
    </message>
    <message>
        <source>Remove Marker</source>
        <translation>Markierung entfernen</translation>
    </message>
    <message>
        <source>Remove Smart Keying Node</source>
        <translation>Smart-Keying-Knoten entfernen</translation>
    </message>
    <message>
        <source>Remove Transition</source>
        <translation>Übergang entfernen</translation>
    </message>
    <message>
        <source>Rename Clip</source>
        <translation>Clip umbenennen</translation>
    </message>
    <message>
        <source>Ripple Delete Clips</source>
        <translation>Clips mit Lückenschluss löschen</translation>
    </message>
    <message>
        <source>Rotate Clip</source>
        <translation>Clip drehen</translation>
    </message>
    <message>
        <source>Change Compound Content</source>
        <translation>Inhalt des zusammengesetzten Clips ändern</translation>
    </message>
    <message>
        <source>Change Motion Tracking</source>
        <translation>Bewegungsverfolgung ändern</translation>
    </message>
    <message>
        <source>Replace Resource</source>
        <translation>Ressource ersetzen</translation>
    </message>
    <message>
        <source>Smart Keying</source>
        <translation>Smart Keying</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Trim End</source>
        <translation>Ende trimmen</translation>
    </message>
    <message>
        <source>Trim Start</source>
        <translation>Anfang trimmen</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Gruppierung aufheben</translation>
    </message>
    <message>
        <source>Unlock Track</source>
        <translation>Spur entsperren</translation>
    </message>
    <message>
        <source>Detach Audio</source>
        <translation>Ton abtrennen</translation>
    </message>
    <message>
        <source>Mute Clips</source>
        <translation>Clips stummschalten</translation>
    </message>
    <message>
        <source>Clear Empty Tracks</source>
        <translation>Leere Spuren entfernen</translation>
    </message>
    <message>
        <source>Clear Remix</source>
        <translation>Remix entfernen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Hide Track</source>
        <translation>Spur ausblenden</translation>
    </message>
    <message>
        <source>Mute Clip</source>
        <translation>Clip stummschalten</translation>
    </message>
    <message>
        <source>Mute Track</source>
        <translation>Spur stummschalten</translation>
    </message>
    <message>
        <source>Paste Transitions</source>
        <translation>Übergänge einfügen</translation>
    </message>
    <message>
        <source>Remix</source>
        <translation>Remix</translation>
    </message>
    <message>
        <source>Show Track</source>
        <translation>Spur einblenden</translation>
    </message>
    <message>
        <source>Unmute Clip</source>
        <translation>Clip hörbar machen</translation>
    </message>
    <message>
        <source>Unmute Track</source>
        <translation>Spur hörbar machen</translation>
    </message>
    <message>
        <source>Add Effect</source>
        <translation>Effekt hinzufügen</translation>
    </message>
    <message>
        <source>Add Effects</source>
        <translation>Effekte hinzufügen</translation>
    </message>
    <message>
        <source>Change Clip Data</source>
        <translation>Clipdaten ändern</translation>
    </message>
    <message>
        <source>Paste Effects</source>
        <translation>Effekte einfügen</translation>
    </message>
    <message>
        <source>Random Transitions</source>
        <translation>Zufällige Übergänge</translation>
    </message>
    <message>
        <source>Remove Effects</source>
        <translation>Effekte entfernen</translation>
    </message>
    <message>
        <source>Change Media Handles</source>
        <translation>Medienüberhang ändern</translation>
    </message>
    <message>
        <source>Change Transition Length</source>
        <translation>Übergangslänge ändern</translation>
    </message>
</context>
<context>
    <name>MvDemoWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>Play / Pause</source>
        <translation>Abspielen / Anhalten</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <translation>&amp;Clip</translation>
    </message>
    <message>
        <source>&amp;Split at Playhead</source>
        <translation>Am Abspielkopf &amp;teilen</translation>
    </message>
    <message>
        <source>Trim &amp;Start to Playhead</source>
        <translation>&amp;Anfang bis zum Abspielkopf trimmen</translation>
    </message>
    <message>
        <source>Trim &amp;End to Playhead</source>
        <translation>&amp;Ende ab dem Abspielkopf trimmen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Ripple Delete</source>
        <translation>Löschen mit Lücken&amp;schluss</translation>
    </message>
    <message>
        <source>Move One Frame &amp;Left</source>
        <translation>Einen Frame nach &amp;links</translation>
    </message>
    <message>
        <source>Move One Frame R&amp;ight</source>
        <translation>Einen Frame nach &amp;rechts</translation>
    </message>
    <message>
        <source>Move One Second Left</source>
        <translation>Eine Sekunde nach links</translation>
    </message>
    <message>
        <source>Move One Second Right</source>
        <translation>Eine Sekunde nach rechts</translation>
    </message>
    <message>
        <source>Move One Track &amp;Up</source>
        <translation>Eine Spur nach &amp;oben</translation>
    </message>
    <message>
        <source>Move One Track Do&amp;wn</source>
        <translation>Eine Spur nach &amp;unten</translation>
    </message>
    <message>
        <source>Rotate 90° Clockwise</source>
        <translation>Um 90° im Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>Rotate 90° Counterclockwise</source>
        <translation>Um 90° gegen den Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>&amp;Go to Selected Clip</source>
        <translation>&amp;Zum ausgewählten Clip gehen</translation>
    </message>
    <message>
        <source>&amp;Markers</source>
        <translation>&amp;Markierungen</translation>
    </message>
    <message>
        <source>&amp;Add Marker</source>
        <translation>Markierung &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove Selected Marker</source>
        <translation>Ausgewählte Markierung &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Edit Marker at Playhead...</source>
        <translation>Markierung am Abspielkopf &amp;bearbeiten …</translation>
    </message>
    <message>
        <source>&amp;Keyframes</source>
        <translation>&amp;Keyframes</translation>
    </message>
    <message>
        <source>&amp;Add Keyframe</source>
        <translation>Keyframe &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Previous Keyframe</source>
        <translation>&amp;Vorheriger Keyframe</translation>
    </message>
    <message>
        <source>&amp;Next Keyframe</source>
        <translation>&amp;Nächster Keyframe</translation>
    </message>
    <message>
        <source>Clear All &amp;Video Keyframes</source>
        <translation>Alle &amp;Video-Keyframes entfernen</translation>
    </message>
    <message>
        <source>Clear All A&amp;udio Keyframes</source>
        <translation>Alle A&amp;udio-Keyframes entfernen</translation>
    </message>
    <message>
        <source>&amp;Virtual Playhead</source>
        <translation>&amp;Virtueller Abspielkopf</translation>
    </message>
    <message>
        <source>&amp;Open Virtual Playhead</source>
        <translation>Virtuellen Abspielkopf ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Close Virtual Playhead</source>
        <translation>Virtuellen Abspielkopf &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>&amp;Einpassen</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Small Tracks</source>
        <translation>Kleine Spuren</translation>
    </message>
    <message>
        <source>Normal Tracks</source>
        <translation>Normale Spuren</translation>
    </message>
    <message>
        <source>Large Tracks</source>
        <translation>Große Spuren</translation>
    </message>
    <message>
        <source>S&amp;nap to Playhead, Edges and Markers</source>
        <translation>&amp;An Abspielkopf, Kanten und Markierungen ausrichten</translation>
    </message>
    <message>
        <source>&amp;Lock Track</source>
        <translation>Spur &amp;sperren</translation>
    </message>
    <message>
        <source>Small Row</source>
        <translation>Kleine Zeile</translation>
    </message>
    <message>
        <source>Normal Row</source>
        <translation>Normale Zeile</translation>
    </message>
    <message>
        <source>Large Row</source>
        <translation>Große Zeile</translation>
    </message>
    <message>
        <source>project media: the shared assets of the new clip are in the project</source>
        <translation>Projektmedien: Die gemeinsamen Bestandteile des neuen Clips sind im Projekt</translation>
    </message>
    <message>
        <source>project media: the shared assets of %1 new clips are in the project</source>
        <translation>Projektmedien: Die gemeinsamen Bestandteile von %1 neuen Clips sind im Projekt</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Medien</translation>
    </message>
    <message>
        <source>&amp;Add to Timeline</source>
        <translation>Zur Zeitleiste &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Choose an item in the Media panel first.</source>
        <translation>Zuerst ein Medium im Medienbereich wählen.</translation>
    </message>
    <message>
        <source>add media: %1 at frame %2</source>
        <translation>Medien hinzufügen: %1 bei Frame %2</translation>
    </message>
    <message>
        <source>add media: %1 at frame %2 on row %3</source>
        <translation>Medien hinzufügen: %1 bei Frame %2 in Zeile %3</translation>
    </message>
    <message>
        <source>%1 was not downloaded.</source>
        <translation>%1 wurde nicht heruntergeladen.</translation>
    </message>
    <message>
        <source>No resolution was chosen for %1.</source>
        <translation>Für %1 wurde keine Auflösung gewählt.</translation>
    </message>
    <message>
        <source>%1 could not be read in time.</source>
        <translation>%1 konnte nicht rechtzeitig gelesen werden.</translation>
    </message>
    <message>
        <source>%1 is empty: there is nothing to add.</source>
        <translation>%1 ist leer: Es gibt nichts hinzuzufügen.</translation>
    </message>
    <message>
        <source>%1 could not be added.</source>
        <translation>%1 konnte nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>P&amp;anels</source>
        <translation>Be&amp;reiche</translation>
    </message>
    <message>
        <source>Find &amp;Similar</source>
        <translation>Ä&amp;hnliche suchen</translation>
    </message>
    <message>
        <source>Select All &amp;Texts</source>
        <translation>Alle &amp;Texte auswählen</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Eigenschaften</translation>
    </message>
    <message>
        <source>Advanced &amp;Edit...</source>
        <translation>Erweitert &amp;bearbeiten …</translation>
    </message>
    <message>
        <source>Advanced &amp;Colour...</source>
        <translation>Erweiterte &amp;Farbe …</translation>
    </message>
    <message>
        <source>&amp;Animation</source>
        <translation>&amp;Animation</translation>
    </message>
    <message>
        <source>Audio Panel of the Picked &amp;Keyframe</source>
        <translation>Audiobereich des gewählten &amp;Keyframes</translation>
    </message>
    <message>
        <source>&amp;Hide Properties</source>
        <translation>Eigenschaften aus&amp;blenden</translation>
    </message>
    <message>
        <source>%1[*] - MvTimeline Demo</source>
        <translation>%1[*] – MvTimeline-Demo</translation>
    </message>
    <message>
        <source>A day by the sea</source>
        <translation>Ein Tag am Meer</translation>
    </message>
    <message>
        <source>Command journal</source>
        <translation>Befehlsprotokoll</translation>
    </message>
    <message>
        <source>command: %1</source>
        <translation>Befehl: %1</translation>
    </message>
    <message>
        <source>drag: move the selection by %1 frames and %2 rows</source>
        <translation>Ziehen: Auswahl um %1 Frames und %2 Zeilen verschieben</translation>
    </message>
    <message>
        <source>The clips cannot move there.</source>
        <translation>Die Clips können nicht dorthin.</translation>
    </message>
    <message>
        <source>refused: %1</source>
        <translation>abgelehnt: %1</translation>
    </message>
    <message>
        <source>%1 is not available now.</source>
        <translation>%1 ist gerade nicht verfügbar.</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederherstellen: %1</translation>
    </message>
    <message>
        <source>Playhead %1 (frame %2)   Selected items: %3   Undo steps: %4</source>
        <translation>Abspielkopf %1 (Frame %2)   Ausgewählt: %3   Rückgängig-Schritte: %4</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>D&amp;uplizieren</translation>
    </message>
    <message>
        <source>&amp;Hide Track</source>
        <translation>Spur aus&amp;blenden</translation>
    </message>
    <message>
        <source>&amp;Mute Track</source>
        <translation>Spur s&amp;tummschalten</translation>
    </message>
    <message>
        <source>&amp;Mute Clips</source>
        <translation>Clips s&amp;tummschalten</translation>
    </message>
    <message>
        <source>Detach &amp;Audio</source>
        <translation>&amp;Ton abtrennen</translation>
    </message>
    <message>
        <source>Clear Re&amp;mix</source>
        <translation>Re&amp;mix entfernen</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>&amp;Zeitleiste</translation>
    </message>
    <message>
        <source>Clear &amp;Empty Tracks</source>
        <translation>&amp;Leere Spuren entfernen</translation>
    </message>
    <message>
        <source>&amp;Open Compound Clip</source>
        <translation>Zusammengesetzten Clip &amp;öffnen</translation>
    </message>
    <message>
        <source>Open Another &amp;Project&apos;s Timeline</source>
        <translation>Zeitleiste eines anderen &amp;Projekts öffnen</translation>
    </message>
    <message>
        <source>%1 (another project)</source>
        <translation>%1 (anderes Projekt)</translation>
    </message>
    <message>
        <source>Un&amp;mute Clips</source>
        <translation>Clips &amp;hörbar machen</translation>
    </message>
    <message>
        <source>&amp;Silence Track</source>
        <translation>Spur &amp;still schalten</translation>
    </message>
    <message>
        <source>&amp;Hear Track</source>
        <translation>Spur &amp;hörbar schalten</translation>
    </message>
    <message>
        <source>&amp;Show Track</source>
        <translation>Spur &amp;einblenden</translation>
    </message>
    <message>
        <source>Un&amp;mute Track</source>
        <translation>Spur &amp;laut schalten</translation>
    </message>
    <message>
        <source>track picked: %1</source>
        <translation>Spur gewählt: %1</translation>
    </message>
    <message>
        <source>no track picked</source>
        <translation>keine Spur gewählt</translation>
    </message>
    <message>
        <source>%1 (compound clip)</source>
        <translation>%1 (zusammengesetzter Clip)</translation>
    </message>
    <message>
        <source>Select the clips first.</source>
        <translation>Zuerst die Clips auswählen.</translation>
    </message>
    <message>
        <source>Choose an effect in the Effects panel first.</source>
        <translation>Zuerst einen Effekt im Effektbereich wählen.</translation>
    </message>
    <message>
        <source>“%1” is a sound effect: it needs a clip with sound on an unlocked track.</source>
        <translation>„%1“ ist ein Soundeffekt: Er braucht einen Clip mit Ton auf einer nicht gesperrten Spur.</translation>
    </message>
    <message>
        <source>“%1” changes the picture: it needs a clip with a picture of its own on an unlocked track.</source>
        <translation>„%1“ verändert das Bild: Er braucht einen Clip mit eigenem Bild auf einer nicht gesperrten Spur.</translation>
    </message>
    <message>
        <source>drop: effect “%1” on “%2”</source>
        <translation>Ablegen: Effekt „%1“ auf „%2“</translation>
    </message>
    <message>
        <source>start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>end</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>drop: transition “%1” on the %2 of “%3”</source>
        <translation>Ablegen: Übergang „%1“ auf %2 von „%3“</translation>
    </message>
    <message>
        <source>effect “%1” applied</source>
        <translation>Effekt „%1“ angewendet</translation>
    </message>
    <message numerus="yes">
        <source>%n transition(s) placed</source>
        <translation>
            <numerusform>%n Übergang platziert</numerusform>
            <numerusform>%n Übergänge platziert</numerusform>
        </translation>
    </message>
    <message>
        <source>Effe&amp;cts</source>
        <translation>Effe&amp;kte</translation>
    </message>
    <message>
        <source>Apply &amp;Transition to Selection</source>
        <translation>&amp;Übergang auf Auswahl anwenden</translation>
    </message>
    <message>
        <source>&amp;Random Transitions</source>
        <translation>&amp;Zufällige Übergänge</translation>
    </message>
    <message>
        <source>Apply &amp;Effect to Selection</source>
        <translation>&amp;Effekt auf Auswahl anwenden</translation>
    </message>
    <message>
        <source>&amp;Copy Effects</source>
        <translation>Effekte &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste Effects</source>
        <translation>Effekte &amp;einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete Effects</source>
        <translation>Effekte &amp;löschen</translation>
    </message>
</context>
</TS>
