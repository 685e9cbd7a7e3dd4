<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>host</name>
    <message>
        <source>The program has no command &quot;%1&quot;; its direction is empty.</source>
        <translation>Le programme n’a pas de commande « %1 » ; sa direction est vide.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>La commande « %1 » n’existe pas.</translation>
    </message>
    <message>
        <source>%1: cannot be used at the moment.</source>
        <translation>%1 : inutilisable pour le moment.</translation>
    </message>
    <message>
        <source>%1: not available at the moment.</source>
        <translation>%1 : indisponible pour le moment.</translation>
    </message>
    <message>
        <source>The toolbar &quot;%1&quot; does not have it now.</source>
        <translation>La barre d’outils « %1 » ne la contient pas actuellement.</translation>
    </message>
    <message>
        <source>It belongs to the toolbar &quot;%1&quot;, which is not there now.</source>
        <translation>Elle appartient à la barre d’outils « %1 », absente pour le moment.</translation>
    </message>
    <message>
        <source>The menu &quot;%1&quot; does not have it now.</source>
        <translation>Le menu « %1 » ne la contient pas actuellement.</translation>
    </message>
    <message>
        <source>It belongs to the menu &quot;%1&quot;, which is not there now.</source>
        <translation>Elle appartient au menu « %1 », absent pour le moment.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
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
        <source>Trim</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Zoom to Fit</source>
        <translation>Zoom ajusté</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The guide to mouse gestures cannot be opened.</source>
        <translation>Impossible d’ouvrir le guide des gestes de la souris.</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Méta</translation>
    </message>
    <message>
        <source>left button</source>
        <translation>bouton gauche</translation>
    </message>
    <message>
        <source>middle button</source>
        <translation>bouton du milieu</translation>
    </message>
    <message>
        <source>right button</source>
        <translation>bouton droit</translation>
    </message>
    <message>
        <source>back button</source>
        <translation>bouton précédent</translation>
    </message>
    <message>
        <source>forward button</source>
        <translation>bouton suivant</translation>
    </message>
    <message>
        <source>Mouse gestures start with %1. Set it by mouse-gestures --trigger %2</source>
        <translation>Les gestes de souris commencent par %1. Pour changer : mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>C’est l’anneau de toutes les tâches.</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>C’est l’anneau de %1.</translation>
    </message>
</context>
</TS>
