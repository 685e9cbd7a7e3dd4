<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>settings::Advice</name>
    <message>
        <source>%1 is no longer installed.</source>
        <translation>%1 n&apos;est plus installé.</translation>
    </message>
    <message>
        <source>Its commands and directions are kept. Install it again to use them.</source>
        <translation>Ses commandes et directions sont conservées. Réinstallez-le pour les utiliser.</translation>
    </message>
    <message>
        <source>%1 is not made with Qt Widgets, so gestures cannot work in it.</source>
        <translation>%1 n&apos;utilise pas Qt Widgets, les gestes ne peuvent donc pas y fonctionner.</translation>
    </message>
    <message>
        <source>The part of Mouse Gestures that %1 needs is not installed.</source>
        <translation>La partie des gestes de la souris dont %1 a besoin n&apos;est pas installée.</translation>
    </message>
    <message>
        <source>Install the package gesturewidget-qt6.</source>
        <translation>Installez le paquet gesturewidget-qt6.</translation>
    </message>
    <message>
        <source>Install the package gesturewidget.</source>
        <translation>Installez le paquet gesturewidget.</translation>
    </message>
    <message>
        <source>This desktop runs without X11, so the ring may open away from the pointer.</source>
        <translation>Ce bureau fonctionne sans X11, l&apos;anneau peut donc s&apos;ouvrir loin du pointeur.</translation>
    </message>
    <message>
        <source>Log in with X11, or install XWayland.</source>
        <translation>Ouvrez une session X11 ou installez XWayland.</translation>
    </message>
    <message>
        <source>The profile of %1 cannot be used: %2</source>
        <translation>Le profil de %1 est inutilisable : %2</translation>
    </message>
    <message>
        <source>Mend or remove that file.</source>
        <translation>Corrigez ou supprimez ce fichier.</translation>
    </message>
    <message>
        <source>Changes cannot be kept: %1</source>
        <translation>Les changements ne peuvent pas être gardés : %1</translation>
    </message>
    <message>
        <source>Make that file and its folder yours, and writable.</source>
        <translation>Faites que ce fichier et son dossier soient à vous et modifiables.</translation>
    </message>
    <message>
        <source>Gestures are switched off in the settings of %1.</source>
        <translation>Les gestes sont désactivés dans les réglages de %1.</translation>
    </message>
    <message>
        <source>%1 crashed in the code of Mouse Gestures, so gestures stay off in it.</source>
        <translation>%1 a planté dans le code de Mouse Gestures, les gestes y restent donc désactivés.</translation>
    </message>
    <message>
        <source>You can switch them on and try again.</source>
        <translation>Vous pouvez les activer et réessayer.</translation>
    </message>
</context>
<context>
    <name>settings::BindingsEditor</name>
    <message>
        <source>The number of directions was changed elsewhere meanwhile.</source>
        <translation>Entre-temps, le nombre de directions a été changé ailleurs.</translation>
    </message>
    <message>
        <source>Empty %1</source>
        <translation>Vider : %1</translation>
    </message>
    <message>
        <source>Put &quot;%1&quot; %2</source>
        <translation>« %1 » : %2</translation>
    </message>
    <message>
        <source>Exchange %1 and %2</source>
        <translation>Échanger %1 et %2</translation>
    </message>
    <message>
        <source>Four Directions</source>
        <translation>Quatre directions</translation>
    </message>
    <message>
        <source>Eight Directions</source>
        <translation>Huit directions</translation>
    </message>
    <message>
        <source>Switch Gestures On</source>
        <translation>Activer les gestes</translation>
    </message>
    <message>
        <source>Switch Gestures Off</source>
        <translation>Désactiver les gestes</translation>
    </message>
    <message>
        <source>The left button alone is for drawing. Hold Ctrl, Shift, Alt or Meta with it.</source>
        <translation>Le bouton gauche seul sert à dessiner. Maintenez avec lui Ctrl, Maj, Alt ou Meta.</translation>
    </message>
    <message>
        <source>Change What Starts a Gesture</source>
        <translation>Changer ce qui démarre un geste</translation>
    </message>
    <message>
        <source>Reset to First Commands</source>
        <translation>Revenir aux premières commandes</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Give &quot;%1&quot; Its Own Ring</source>
        <translation>Donner à « %1 » son propre anneau</translation>
    </message>
    <message>
        <source>Let &quot;%1&quot; Use the Shared Ring</source>
        <translation>Donner à « %1 » l&apos;anneau commun</translation>
    </message>
</context>
<context>
    <name>settings::CommandModel</name>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>First commands</source>
        <translation>Premières commandes</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>settings::CommandPanel</name>
    <message>
        <source>No command has this in its name.</source>
        <translation>Aucune commande n&apos;a cela dans son nom.</translation>
    </message>
    <message>
        <source>Search commands</source>
        <translation>Chercher des commandes</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Ctrl and an arrow key puts the chosen command into that direction; Ctrl with Home, Page Up, End or Page Down into the one between.</source>
        <translation>Ctrl et une flèche met la commande choisie dans cette direction ; Ctrl avec Origine, Page préc., Fin ou Page suiv. dans celle d&apos;entre deux.</translation>
    </message>
    <message>
        <source>&amp;Put Into</source>
        <translation>&amp;Placer dans</translation>
    </message>
    <message>
        <source>%1 (now %2)</source>
        <comment>a direction and its command</comment>
        <translation>%1 (à présent %2)</translation>
    </message>
    <message>
        <source>Take Off the Ring</source>
        <translation>Retirer de l&apos;anneau</translation>
    </message>
</context>
<context>
    <name>settings::Exchange</name>
    <message>
        <source>Gestures (*.json)</source>
        <translation>Gestes (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exporté vers %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Imported from %1</source>
        <translation>Importé de %1</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>Gestes de la souris dans %1</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Imprimé</translation>
    </message>
    <message>
        <source>The printer did not take the sheet.</source>
        <translation>L&apos;imprimante n&apos;a pas accepté la feuille.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Bring the first commands of %1 back?</source>
        <translation>Rétablir les premières commandes de %1 ?</translation>
    </message>
    <message>
        <source>All directions get the commands that they had before anybody chose any. What starts a gesture stays. Undo takes this back.</source>
        <translation>Toutes les directions reprennent les commandes d&apos;origine. Ce qui démarre un geste reste. Annuler revient en arrière.</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Réinitialiser</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>settings::ImportPreview</name>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>Ce qui change</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>À présent</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>%1 has what %2 has already. Nothing would change.</source>
        <translation>%1 contient ce que %2 a déjà. Rien ne changerait.</translation>
    </message>
    <message>
        <source>%1 would change the following in %2. The settings as they are now stay beside the new ones.</source>
        <translation>%1 changerait ceci dans %2. Les réglages actuels restent à côté des nouveaux.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activés</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivés</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (habituel)</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>Gestures</source>
        <translation>Gestes</translation>
    </message>
    <message>
        <source>Directions in use</source>
        <translation>Directions utilisées</translation>
    </message>
    <message>
        <source>A gesture starts with</source>
        <translation>Un geste démarre avec</translation>
    </message>
    <message>
        <source>%1 (of %2 directions)</source>
        <translation>%1 (sur %2 directions)</translation>
    </message>
    <message>
        <source>%1: now %2, after %3</source>
        <translation>%1 : à présent %2, après %3</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Ring of %1</source>
        <translation>Anneau de %1</translation>
    </message>
    <message>
        <source>its own</source>
        <translation>le sien</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>partagé</translation>
    </message>
    <message>
        <source>the file&apos;s</source>
        <translation>celui du fichier</translation>
    </message>
</context>
<context>
    <name>settings::MessageBar</name>
    <message>
        <source>Close message</source>
        <translation>Fermer le message</translation>
    </message>
</context>
<context>
    <name>settings::ProgramModel</name>
    <message>
        <source>Starts with gestures</source>
        <translation>Démarre avec les gestes</translation>
    </message>
    <message>
        <source>Starts without gestures</source>
        <translation>Démarre sans les gestes</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPage</name>
    <message>
        <source>Switch Gestures &amp;On</source>
        <translation>&amp;Activer les gestes</translation>
    </message>
    <message>
        <source>Start with &amp;gestures</source>
        <translation>Démarrer avec les &amp;gestes</translation>
    </message>
    <message>
        <source>Start with gestures</source>
        <translation>Démarrer avec les gestes</translation>
    </message>
    <message>
        <source>&amp;4 directions</source>
        <translation>&amp;4 directions</translation>
    </message>
    <message>
        <source>&amp;8 directions</source>
        <translation>&amp;8 directions</translation>
    </message>
    <message>
        <source>Drag a command from the list into a direction. Drag it on to another direction to exchange the two, or off the ring to take it away.</source>
        <translation>Faites glisser une commande de la liste dans une direction. Glissez-la dans une autre pour les échanger, ou hors de l&apos;anneau pour la retirer.</translation>
    </message>
    <message>
        <source>Gestures work. %1 starts with them from the desktop&apos;s menus.</source>
        <translation>Les gestes fonctionnent. %1 démarre avec eux depuis les menus du bureau.</translation>
    </message>
    <message>
        <source>Gestures would work. Switch them on here, then start %1 from the desktop&apos;s menus.</source>
        <translation>Les gestes fonctionneraient. Activez-les ici, puis démarrez %1 depuis les menus du bureau.</translation>
    </message>
    <message>
        <source>These are the commands that nearly every program has. All others of %1 appear here when it has run with gestures once.</source>
        <translation>Voici les commandes que presque tout programme possède. Toutes les autres de %1 apparaîtront ici quand il aura été lancé une fois avec les gestes.</translation>
    </message>
    <message>
        <source>%1: hold, drag, and move on towards a command</source>
        <translation>%1 : maintenir, glisser et continuer vers une commande</translation>
    </message>
    <message>
        <source>Ring of a task</source>
        <translation>Anneau d&apos;une tâche</translation>
    </message>
    <message>
        <source>&amp;Ring:</source>
        <translation>&amp;Anneau :</translation>
    </message>
    <message>
        <source>For all tasks</source>
        <translation>Pour toutes les tâches</translation>
    </message>
    <message>
        <source>&amp;Own Rings</source>
        <translation>Anneaux pr&amp;opres</translation>
    </message>
    <message>
        <source>Choose the tasks that have rings of their own</source>
        <translation>Choisir les tâches qui ont leur propre anneau</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPanel</name>
    <message>
        <source>Search programs</source>
        <translation>Chercher des programmes</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programmes</translation>
    </message>
    <message>
        <source>Space switches a program&apos;s gestures on or off.</source>
        <translation>Espace active ou désactive les gestes d&apos;un programme.</translation>
    </message>
    <message>
        <source>Looking for programs</source>
        <translation>Recherche de programmes</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>Recherche de programmes...</translation>
    </message>
    <message>
        <source>The desktop&apos;s menus show no program in which gestures can work. Gestures need a program made with Qt Widgets.</source>
        <translation>Les menus du bureau ne montrent aucun programme où les gestes peuvent fonctionner. Il faut un programme fait avec Qt Widgets.</translation>
    </message>
    <message>
        <source>No program has this in its name.</source>
        <translation>Aucun programme n&apos;a cela dans son nom.</translation>
    </message>
</context>
<context>
    <name>settings::RingView</name>
    <message>
        <source>Ring of directions</source>
        <translation>Anneau des directions</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1 : rien</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Picked up. Space at another direction exchanges the two.</source>
        <translation>Prise. Espace sur une autre direction échange les deux.</translation>
    </message>
    <message>
        <source>Enter puts the chosen command here, Delete empties it, Space picks it up.</source>
        <translation>Entrée met ici la commande choisie, Suppr la vide, Espace la prend.</translation>
    </message>
</context>
<context>
    <name>settings::SettingsWindow</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>Gestes de la souris</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>Recherche de programmes...</translation>
    </message>
    <message>
        <source>Main toolbar</source>
        <translation>Barre principale</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Start the Program</source>
        <translation>&amp;Démarrer le programme</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exporter...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Im&amp;primer...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>&amp;Find a Command</source>
        <translation>&amp;Chercher une commande</translation>
    </message>
    <message>
        <source>Reset to &amp;First Commands...</source>
        <translation>Revenir aux &amp;premières commandes...</translation>
    </message>
    <message>
        <source>Reset...</source>
        <translation>Réinitialiser...</translation>
    </message>
    <message>
        <source>No program</source>
        <translation>Aucun programme</translation>
    </message>
    <message>
        <source>%1 could not be started.</source>
        <translation>%1 n&apos;a pas pu être démarré.</translation>
    </message>
</context>
<context>
    <name>settings::Trigger</name>
    <message>
        <source>Left button</source>
        <translation>Bouton gauche</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>Bouton du milieu</translation>
    </message>
    <message>
        <source>Back button</source>
        <translation>Bouton précédent</translation>
    </message>
    <message>
        <source>Forward button</source>
        <translation>Bouton suivant</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Bouton droit</translation>
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
        <translation>Meta</translation>
    </message>
</context>
<context>
    <name>settings::TriggerField</name>
    <message>
        <source>Record what starts a gesture</source>
        <translation>Enregistrer ce qui démarre un geste</translation>
    </message>
    <message>
        <source>Press a mouse button here, with the keys to hold. With the keyboard, choose from the list.</source>
        <translation>Appuyez ici sur un bouton de la souris, avec les touches à maintenir. Au clavier, choisissez dans la liste.</translation>
    </message>
    <message>
        <source>Press a mouse button here, with Ctrl, Shift, Alt or Meta held if you like</source>
        <translation>Appuyez ici sur un bouton de la souris, avec Ctrl, Maj, Alt ou Meta si vous voulez</translation>
    </message>
    <message>
        <source>or press it here</source>
        <translation>ou appuyez ici</translation>
    </message>
</context>
<context>
    <name>settings::TriggerPanel</name>
    <message>
        <source>A gesture &amp;starts with:</source>
        <translation>Un geste &amp;démarre avec :</translation>
    </message>
    <message>
        <source>What starts a gesture</source>
        <translation>Ce qui démarre un geste</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (habituel)</translation>
    </message>
    <message>
        <source>%1 (%2 uses it)</source>
        <translation>%1 (utilisé par %2)</translation>
    </message>
    <message>
        <source>%1 uses this drag itself. While it starts a gesture, %1 no longer gets it.</source>
        <translation>%1 utilise lui-même ce glissement. Tant qu&apos;il démarre un geste, %1 ne le reçoit plus.</translation>
    </message>
    <message>
        <source>%1 is running. It takes this over at its next start.</source>
        <translation>%1 est en cours d&apos;exécution. Le changement prend effet à son prochain démarrage.</translation>
    </message>
</context>
</TS>
