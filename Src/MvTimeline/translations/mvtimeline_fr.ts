<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>MvMarkerEditColor</name>
    <message>
        <source>Marker colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvMarkerEditDialog</name>
    <message>
        <source>Marker Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvMarkerEditPanel</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marker Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add your comments here</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvMarkerWidget</name>
    <message>
        <source>Markers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No markers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unnamed marker</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvPureTimelineRulerWidget</name>
    <message>
        <source>Time ruler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to set the time, drag sideways to zoom.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvTimelinePlayheadWidget</name>
    <message>
        <source>Playhead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag to Move playhead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split at playhead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to split</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvTimelinePresenter</name>
    <message>
        <source>Unable to add compound clip itself, please try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to add external compound clip. Please try again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvTimelineRenderWidget</name>
    <message>
        <source>Render progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How much of the timeline is rendered for preview.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1% rendered</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MvTimelineRulerWidget</name>
    <message>
        <source>Time ruler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to move the playhead, drag sideways to zoom.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
