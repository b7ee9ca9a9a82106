<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>MvMarkerEditColor</name>
    <message>
        <source>Marker colors</source>
        <translation>Markierungsfarben</translation>
    </message>
    <message>
        <source>No color</source>
        <translation>Keine Farbe</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
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
        <source>Purple</source>
        <translation>Lila</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>Farbe %1</translation>
    </message>
</context>
<context>
    <name>MvMarkerEditDialog</name>
    <message>
        <source>Marker Editor</source>
        <translation>Markierung bearbeiten</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>LÖSCHEN</translation>
    </message>
</context>
<context>
    <name>MvMarkerEditPanel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Marker Color</source>
        <translation>Markierungsfarbe</translation>
    </message>
    <message>
        <source>Add your comments here</source>
        <translation>Kommentar hier eingeben</translation>
    </message>
</context>
<context>
    <name>MvMarkerWidget</name>
    <message>
        <source>Markers</source>
        <translation>Markierungen</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>Keine Markierungen</translation>
    </message>
    <message>
        <source>Unnamed marker</source>
        <translation>Unbenannte Markierung</translation>
    </message>
</context>
<context>
    <name>MvPureTimelineRulerWidget</name>
    <message>
        <source>Time ruler</source>
        <translation>Zeitlineal</translation>
    </message>
    <message>
        <source>Click to set the time, drag sideways to zoom.</source>
        <translation>Klicken setzt die Zeit, seitliches Ziehen zoomt.</translation>
    </message>
</context>
<context>
    <name>MvTimelinePlayheadWidget</name>
    <message>
        <source>Playhead</source>
        <translation>Abspielkopf</translation>
    </message>
    <message>
        <source>Drag to Move playhead</source>
        <translation>Ziehen verschiebt den Abspielkopf</translation>
    </message>
    <message>
        <source>Split at playhead</source>
        <translation>Am Abspielkopf teilen</translation>
    </message>
    <message>
        <source>Click to split</source>
        <translation>Klicken zum Teilen</translation>
    </message>
</context>
<context>
    <name>MvTimelinePresenter</name>
    <message>
        <source>Unable to add compound clip itself, please try again</source>
        <translation>Ein zusammengesetzter Clip kann nicht in sich selbst eingefügt werden, bitte erneut versuchen</translation>
    </message>
    <message>
        <source>Unable to add external compound clip. Please try again.</source>
        <translation>Der externe zusammengesetzte Clip konnte nicht hinzugefügt werden. Bitte erneut versuchen.</translation>
    </message>
    <message>
        <source>Clip is too short to add transition.</source>
        <translation>Der Clip ist zu kurz für einen Übergang.</translation>
    </message>
    <message>
        <source>Please select the clip with audio in the timeline.</source>
        <translation>Bitte in der Zeitleiste den Clip mit Ton auswählen.</translation>
    </message>
    <message>
        <source>Please select the video clip in the timeline.</source>
        <translation>Bitte in der Zeitleiste den Videoclip auswählen.</translation>
    </message>
    <message>
        <source>There is no extra media where the clips connect, This transition will contain duplicate frames</source>
        <translation>Wo die Clips aneinanderstoßen, gibt es kein zusätzliches Material. Dieser Übergang wird doppelte Frames enthalten</translation>
    </message>
</context>
<context>
    <name>MvTimelineRenderWidget</name>
    <message>
        <source>Render progress</source>
        <translation>Renderfortschritt</translation>
    </message>
    <message>
        <source>How much of the timeline is rendered for preview.</source>
        <translation>Wie viel der Zeitleiste für die Vorschau gerendert ist.</translation>
    </message>
    <message>
        <source>%1% rendered</source>
        <translation>%1 % gerendert</translation>
    </message>
</context>
<context>
    <name>MvTimelineRulerWidget</name>
    <message>
        <source>Time ruler</source>
        <translation>Zeitlineal</translation>
    </message>
    <message>
        <source>Click to move the playhead, drag sideways to zoom.</source>
        <translation>Klicken versetzt den Abspielkopf, seitliches Ziehen zoomt.</translation>
    </message>
</context>
</TS>
