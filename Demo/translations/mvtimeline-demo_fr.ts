<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>MvDemoCommandLine</name>
    <message>
        <source>Play the built-in scenario, save screenshots and the journal, then quit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder for the scenario&apos;s files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the library&apos;s detail and note records too, not only its warnings and refusals.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the demo in this language (for instance de or fr) instead of the system&apos;s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MvTimeline demo editor</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvDemoJournalWords</name>
    <message>
        <source>ask whether to ungroup before splitting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>switch the player to this timeline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>effects pasted, update the player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pause player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stop player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ask whether the player is playing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pause player and wait for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seek</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seek once paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hide the property panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show a page of the property panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>open the advanced subtitle editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>open the advanced text editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>open the advanced colour panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>open the advanced title editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>effects deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>effects pasted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show the property panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>find similar resources in the media library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>select clips in the media editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>download media items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>choose the resolution of stock items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>choose the resolution of a VCG item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>offer the media&apos;s settings to the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>media added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bring the new clips into view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>message %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refusal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>library %1: %2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvDemoLibraryDock</name>
    <message>
        <source>Library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Similar asks the media library for resources like the one a clip was made from. The library&apos;s answers would be listed here; the requests are:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Similar to “%1” on the %2 shelf (resource %3, %4, library %5)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvDemoMarkerDialogStyle</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvDemoMediaPanel</name>
    <message>
        <source>Media</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click or drag onto a track to add.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to Timeline</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvDemoMediaScene</name>
    <message>
        <source>downloaded one item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>downloaded %1 items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>added %1 as one clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>added %1 as %2 clips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the new clip brought into view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 new clips brought into view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>download cancelled: %1 of %2 fetched, %3 stays online</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” comes in these resolutions:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use This Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing to match</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the project already runs at %1 fps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 runs at %2 fps; the project runs at %3 fps. Change the project to %2 fps?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change to %1 fps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep %1 fps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the project keeps %1 fps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the project now runs at %1 fps</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvDemoMediaThumbnail</name>
    <message>
        <source>Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, read on first use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, still recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, %1 fps</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvDemoPropertiesDock</name>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video keyframes: pick one to go there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio keyframes: pick one to go there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the Properties dock is hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>selected in the text editor: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties dock shows: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keyframe panel: Properties dock shows: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, rotated %2°</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a picture clip.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a clip with sound.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour grading of “%1”: the editor&apos;s colour wheels and curves would open here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a picture clip to grade its colours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This selection has no property panel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The texts of “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (secondary)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keyframe picked: %1 at %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvDemoPropertyWords</name>
    <message>
        <source>Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video with sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjustment layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compound clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Music</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no shelf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clip properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture properties and video keyframes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio properties and audio keyframes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced text editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced subtitle editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced title editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced colour editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (clip frame %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a clip to see its properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From %1 to %2 (%3 frames)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation: %1°</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Library resource: “%1” from library %2%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, similar resources can be found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your own media</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (secondary)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layers: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyframes: %1 video, %2 audio</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvDemoRefusals</name>
    <message>
        <source>Select one clip made from a library resource to find similar ones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is your own media: the library finds only resources like its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The library&apos;s similarity search does not know “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select one composed text to select its texts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not composed of texts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a clip first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours are graded on picture clips.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a keyframe in the Properties dock first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the virtual playhead before splitting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no clip under the playhead to split.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None of the selected clips is under the playhead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clips under the playhead are on locked tracks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select one clip to trim.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected clip is on a locked track.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the playhead inside the selected clip to trim it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the clips to ripple delete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is selected to delete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A selected clip is on a locked track.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no timeline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the clips to move.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clips already start at the beginning of the timeline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no track of the clips&apos; kind there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The track the clips would move to is locked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clips cannot move before the start of the timeline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another clip is in the way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a clip to rotate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A marker cannot go on a transition: select a clip or nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is already a marker at the playhead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a marker first: click its flag above the ruler.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no marker at the playhead to edit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a picture clip to add a keyframe.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected clips have no sound keyframes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected clips have no picture keyframes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The virtual playhead is already open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This timeline has no virtual playhead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The virtual playhead is not open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvDemoScene</name>
    <message>
        <source>scene: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to frame %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>scene: %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>split and keep the groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split grouped clips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some of the clips to split belong to a group. Ungroup them before splitting?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ungroup and Split</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split and Keep Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ungroup and split</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvDemoTrackArea</name>
    <message>
        <source>Unnamed marker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (rotated %2°)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>virtual playhead</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvDemoTrackHeaders</name>
    <message>
        <source>Audio %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvDemoWindow</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play / Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Split at Playhead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trim &amp;Start to Playhead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trim &amp;End to Playhead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ripple Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move One Frame &amp;Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move One Frame R&amp;ight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move One Second Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move One Second Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move One Track &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move One Track Do&amp;wn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate 90° Clockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate 90° Counterclockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go to Selected Clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Markers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Marker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove Selected Marker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit Marker at Playhead...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keyframes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Keyframe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous Keyframe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Keyframe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear All &amp;Video Keyframes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear All A&amp;udio Keyframes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Virtual Playhead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Virtual Playhead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close Virtual Playhead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small Tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal Tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large Tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;nap to Playhead, Edges and Markers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Lock Track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>project media: the shared assets of the new clip are in the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>project media: the shared assets of %1 new clips are in the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add to Timeline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an item in the Media panel first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>add media: %1 at frame %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>add media: %1 at frame %2 on row %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not downloaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No resolution was chosen for %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be read in time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is empty: there is nothing to add.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;anels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find &amp;Similar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All &amp;Texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced &amp;Edit...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced &amp;Colour...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Panel of the Picked &amp;Keyframe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hide Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1[*] - MvTimeline Demo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A day by the sea</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>command: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>drag: move the selection by %1 frames and %2 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clips cannot move there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not available now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playhead %1 (frame %2)   Selected items: %3   Undo steps: %4</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
