<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>MvMarkerEditColor</name>
    <message>
        <source>Marker colors</source>
        <translation>Couleurs du marqueur</translation>
    </message>
    <message>
        <source>No color</source>
        <translation>Aucune couleur</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
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
        <source>Purple</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>Couleur %1</translation>
    </message>
</context>
<context>
    <name>MvMarkerEditDialog</name>
    <message>
        <source>Marker Editor</source>
        <translation>Éditeur de marqueur</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>SUPPRIMER</translation>
    </message>
</context>
<context>
    <name>MvMarkerEditPanel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Marker Color</source>
        <translation>Couleur du marqueur</translation>
    </message>
    <message>
        <source>Add your comments here</source>
        <translation>Ajoutez vos commentaires ici</translation>
    </message>
</context>
<context>
    <name>MvMarkerWidget</name>
    <message>
        <source>Markers</source>
        <translation>Marqueurs</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>Aucun marqueur</translation>
    </message>
    <message>
        <source>Unnamed marker</source>
        <translation>Marqueur sans nom</translation>
    </message>
</context>
<context>
    <name>MvPureTimelineRulerWidget</name>
    <message>
        <source>Time ruler</source>
        <translation>Règle temporelle</translation>
    </message>
    <message>
        <source>Click to set the time, drag sideways to zoom.</source>
        <translation>Cliquez pour régler le temps, faites glisser latéralement pour zoomer.</translation>
    </message>
</context>
<context>
    <name>MvTimelinePlayheadWidget</name>
    <message>
        <source>Playhead</source>
        <translation>Tête de lecture</translation>
    </message>
    <message>
        <source>Drag to Move playhead</source>
        <translation>Faites glisser pour déplacer la tête de lecture</translation>
    </message>
    <message>
        <source>Split at playhead</source>
        <translation>Couper à la tête de lecture</translation>
    </message>
    <message>
        <source>Click to split</source>
        <translation>Cliquez pour couper</translation>
    </message>
</context>
<context>
    <name>MvTimelinePresenter</name>
    <message>
        <source>Unable to add compound clip itself, please try again</source>
        <translation>Impossible d’ajouter le clip composé à lui-même, veuillez réessayer</translation>
    </message>
    <message>
        <source>Unable to add external compound clip. Please try again.</source>
        <translation>Impossible d’ajouter le clip composé externe. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Clip is too short to add transition.</source>
        <translation>Le clip est trop court pour ajouter une transition.</translation>
    </message>
    <message>
        <source>Please select the clip with audio in the timeline.</source>
        <translation>Veuillez sélectionner le clip avec audio dans la timeline.</translation>
    </message>
    <message>
        <source>Please select the video clip in the timeline.</source>
        <translation>Veuillez sélectionner le clip vidéo dans la timeline.</translation>
    </message>
    <message>
        <source>There is no extra media where the clips connect, This transition will contain duplicate frames</source>
        <translation>Il n’y a pas de média supplémentaire à la jonction des clips. Cette transition contiendra des images dupliquées</translation>
    </message>
</context>
<context>
    <name>MvTimelineRenderWidget</name>
    <message>
        <source>Render progress</source>
        <translation>Progression du rendu</translation>
    </message>
    <message>
        <source>How much of the timeline is rendered for preview.</source>
        <translation>Part de la timeline déjà rendue pour l’aperçu.</translation>
    </message>
    <message>
        <source>%1% rendered</source>
        <translation>%1 % rendu</translation>
    </message>
</context>
<context>
    <name>MvTimelineRulerWidget</name>
    <message>
        <source>Time ruler</source>
        <translation>Règle temporelle</translation>
    </message>
    <message>
        <source>Click to move the playhead, drag sideways to zoom.</source>
        <translation>Cliquez pour déplacer la tête de lecture, faites glisser latéralement pour zoomer.</translation>
    </message>
</context>
</TS>
