<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>launcher</name>
    <message>
        <source>show which command lies in which direction</source>
        <translation>montrer quelle commande est dans quelle direction</translation>
    </message>
    <message>
        <source>show the commands that the program has shown so far</source>
        <translation>montrer les commandes que le programme a affichées jusqu’ici</translation>
    </message>
    <message>
        <source>choose what starts a gesture: right, middle, ctrl+right, ...; &quot;default&quot; is the usual trigger</source>
        <translation>choisir le déclencheur : right, middle, ctrl+right, ... ; « default » est l’habituel</translation>
    </message>
    <message>
        <source>bring the first bindings back; the trigger stays</source>
        <translation>rétablir les premières affectations ; le déclencheur reste</translation>
    </message>
    <message>
        <source>write all bindings as JSON</source>
        <translation>écrire toutes les affectations en JSON</translation>
    </message>
    <message>
        <source>take over such a file, all of it or nothing</source>
        <translation>reprendre un tel fichier, en entier ou pas du tout</translation>
    </message>
    <message>
        <source>draw the ring with its commands, to pin on the wall</source>
        <translation>dessiner l’anneau avec ses commandes, à afficher au mur</translation>
    </message>
    <message>
        <source>say whether gestures can work in the program</source>
        <translation>dire si les gestes peuvent marcher dans le programme</translation>
    </message>
    <message>
        <source>start the program, say what in it is taken for what and why, print that as a profile, end the program</source>
        <translation>lancer le programme, dire ce qui y est pris pour quoi et pourquoi, l’écrire comme profil, terminer le programme</translation>
    </message>
    <message>
        <source>start it with gestures from the desktop&apos;s menus too</source>
        <translation>le lancer aussi avec les gestes depuis les menus du bureau</translation>
    </message>
    <message>
        <source>start it from the desktop&apos;s menus as before</source>
        <translation>le lancer depuis les menus du bureau comme avant</translation>
    </message>
    <message>
        <source>usage: mouse-gestures %1 %2</source>
        <translation>usage : mouse-gestures %1 %2</translation>
    </message>
    <message>
        <source>unknown option %1, see mouse-gestures --help</source>
        <translation>option inconnue %1, voir mouse-gestures --help</translation>
    </message>
    <message>
        <source>no program given, see mouse-gestures --help</source>
        <translation>aucun programme indiqué, voir mouse-gestures --help</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Usage :</translation>
    </message>
    <message>
        <source>Starts a drafting program with mouse gestures: hold the right button in the drawing, drag, and move on towards the command you want. &quot;Mouse Gestures...&quot; in the program&apos;s menus shows which command lies in which direction.</source>
        <translation>Lance un programme de dessin avec des gestes de la souris : maintenez le bouton droit dans le dessin, faites glisser, et continuez vers la commande voulue. « Gestes de la souris... » dans les menus du programme montre quelle commande est dans quelle direction.</translation>
    </message>
    <message>
        <source>PROGRAM is any program made with Qt Widgets, 5 or 6. It is not changed. Without a program, a window opens in which a person can do all of this with the mouse.</source>
        <translation>PROGRAM est n’importe quel programme fait avec Qt Widgets, 5 ou 6. Il n’est pas modifié. Sans programme, une fenêtre s’ouvre, où tout cela se fait à la souris.</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>montrer ce texte</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>montrer la version</translation>
    </message>
    <message>
        <source>the next word is the program, even if it starts with &quot;-&quot;</source>
        <translation>le mot suivant est le programme, même s’il commence par « - »</translation>
    </message>
    <message>
        <source>FILE may be &quot;-&quot; for standard output or standard input.</source>
        <translation>FILE peut être « - » pour la sortie ou l’entrée standard.</translation>
    </message>
    <message>
        <source>Exit status of a started program: its own. 127: there is no such program. 126: it cannot be run with gestures. 125: mouse-gestures is not set up or not used correctly. An option exits with 1 when it could not be done; nothing is changed then.</source>
        <translation>Code de sortie d’un programme lancé : le sien. 127 : ce programme n’existe pas. 126 : il ne peut pas tourner avec les gestes. 125 : mouse-gestures est mal installé ou mal utilisé. Une option se termine par 1 si elle n’a pas pu être exécutée ; rien n’est alors changé.</translation>
    </message>
    <message>
        <source>standard input cannot be read</source>
        <translation>impossible de lire l’entrée standard</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>gestures cannot work well in %1, see the lines with &quot;!&quot;</source>
        <translation>les gestes ne peuvent pas bien marcher dans %1, voir les lignes avec « ! »</translation>
    </message>
    <message>
        <source>%1: there is no such program</source>
        <translation>%1 : ce programme n’existe pas</translation>
    </message>
    <message>
        <source>standard output cannot be written</source>
        <translation>impossible d’écrire sur la sortie standard</translation>
    </message>
    <message>
        <source>warning: there is no X11 display; under Wayland the ring may open away from the pointer</source>
        <translation>attention : il n’y a pas d’affichage X11 ; sous Wayland l’anneau peut s’ouvrir loin du pointeur</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>To change any of it, edit this profile and keep it as %1</source>
        <translation>Pour changer cela, modifiez ce profil et enregistrez-le sous %1</translation>
    </message>
    <message>
        <source>%1 is your own and stays as it is</source>
        <translation>%1 est à vous et reste tel quel</translation>
    </message>
    <message>
        <source>%1: the desktop has no entry that starts it</source>
        <translation>%1 : aucune entrée du bureau ne lance ce programme</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>impossible de lire %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>impossible d’écrire %1</translation>
    </message>
    <message>
        <source>starts with gestures: %1</source>
        <translation>démarre avec les gestes : %1</translation>
    </message>
    <message>
        <source>%1 cannot be removed</source>
        <translation>impossible de supprimer %1</translation>
    </message>
    <message>
        <source>starts as before: %1 is removed</source>
        <translation>démarre comme avant : %1 est supprimé</translation>
    </message>
    <message>
        <source>%1: nothing was there to remove</source>
        <translation>%1 : il n’y avait rien à supprimer</translation>
    </message>
    <message>
        <source>program</source>
        <translation>programme</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>plug-in</source>
        <translation>greffon</translation>
    </message>
    <message>
        <source>display</source>
        <translation>affichage</translation>
    </message>
    <message>
        <source>compositor</source>
        <translation>compositeur</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>profil</translation>
    </message>
    <message>
        <source>views</source>
        <translation>vues</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>réglages</translation>
    </message>
    <message>
        <source>gestures</source>
        <translation>gestes</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>déclencheur</translation>
    </message>
    <message>
        <source>%1, not found</source>
        <translation>%1, introuvable</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not known before it runs: a script</source>
        <translation>inconnu avant l’exécution : un script</translation>
    </message>
    <message>
        <source>none; gestures need a program made with Qt Widgets</source>
        <translation>aucun ; les gestes demandent un programme fait avec Qt Widgets</translation>
    </message>
    <message>
        <source>not installed</source>
        <translation>non installé</translation>
    </message>
    <message>
        <source>not installed for Qt %1</source>
        <translation>non installé pour Qt %1</translation>
    </message>
    <message>
        <source>Wayland without X11; the ring may open away from the pointer</source>
        <translation>Wayland sans X11 ; l’anneau peut s’ouvrir loin du pointeur</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Wayland; the program will use X11, %1</source>
        <translation>Wayland ; le programme utilisera X11, %1</translation>
    </message>
    <message>
        <source>X11, %1</source>
        <translation>X11, %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>en marche</translation>
    </message>
    <message>
        <source>none; the ring shows what was under it when it opened</source>
        <translation>aucun ; l’anneau montre ce qu’il couvrait à l’ouverture</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>none of its own</source>
        <translation>aucun qui lui soit propre</translation>
    </message>
    <message>
        <source>looked for in the running program, see --explain</source>
        <translation>cherchées dans le programme en marche, voir --explain</translation>
    </message>
    <message>
        <source>%1, by the profile</source>
        <translation>%1, selon le profil</translation>
    </message>
    <message>
        <source>%1, cannot be written</source>
        <translation>%1, écriture impossible</translation>
    </message>
    <message>
        <source>%1, not there yet</source>
        <translation>%1, pas encore créé</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>désactivés dans les réglages</translation>
    </message>
    <message>
        <source>on, %1 of them</source>
        <translation>activés, au nombre de %1</translation>
    </message>
    <message>
        <source>it %1 before it had shown a main window with menus</source>
        <translation>il %1 avant d’avoir montré une fenêtre principale avec des menus</translation>
    </message>
    <message>
        <source>it has not loaded the plug-in in %1 seconds</source>
        <translation>il n’a pas chargé le greffon en %1 secondes</translation>
    </message>
    <message>
        <source>it has shown no main window with menus in %1 seconds; a dialog may be waiting</source>
        <translation>il n’a montré aucune fenêtre principale avec des menus en %1 secondes ; un dialogue attend peut-être</translation>
    </message>
    <message>
        <source>was ended by signal %1</source>
        <translation>a été terminé par le signal %1</translation>
    </message>
    <message>
        <source>ended with status %1</source>
        <translation>s’est terminé avec le code %1</translation>
    </message>
    <message>
        <source>%1: the file may not be executed</source>
        <translation>%1 : ce fichier n’est pas exécutable</translation>
    </message>
    <message>
        <source>%1: this is a folder, not a program</source>
        <translation>%1 : c’est un dossier, pas un programme</translation>
    </message>
    <message>
        <source>%1: gestures need a program made with Qt Widgets, which this one is not</source>
        <translation>%1 : les gestes demandent un programme fait avec Qt Widgets, ce qui n’est pas le cas</translation>
    </message>
    <message>
        <source>the plug-in libmousegestures is not installed</source>
        <translation>le greffon libmousegestures n’est pas installé</translation>
    </message>
    <message>
        <source>%1 uses Qt %2, for which the plug-in libmousegestures-qt%2.so is not installed</source>
        <translation>%1 utilise Qt %2, mais le greffon libmousegestures-qt%2.so n’est pas installé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice</source>
        <translation>« %1 » figure deux fois</translation>
    </message>
    <message>
        <source>is not a key of such a file</source>
        <translation>n’est pas une clé d’un tel fichier</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>manque</translation>
    </message>
    <message>
        <source>is not an object</source>
        <translation>n’est pas un objet</translation>
    </message>
    <message>
        <source>is not a string</source>
        <translation>n’est pas une chaîne</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>contient un caractère de contrôle</translation>
    </message>
    <message>
        <source>has &quot;%1&quot;, which another direction has</source>
        <translation>a « %1 », qu’une autre direction a déjà</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>line %1: this is nested too deeply for bindings</source>
        <translation>ligne %1 : l’imbrication est trop profonde pour des affectations</translation>
    </message>
    <message>
        <source>line 1: it is not an object</source>
        <translation>ligne 1 : ce n’est pas un objet</translation>
    </message>
    <message>
        <source>is not %1</source>
        <translation>n’est pas %1</translation>
    </message>
    <message>
        <source>is not &quot;%1&quot;</source>
        <translation>n’est pas « %1 »</translation>
    </message>
    <message>
        <source>is neither true nor false</source>
        <translation>n’est ni true ni false</translation>
    </message>
    <message>
        <source>names no button</source>
        <translation>ne nomme aucun bouton</translation>
    </message>
    <message>
        <source>is neither 4 nor 8</source>
        <translation>n’est ni 4 ni 8</translation>
    </message>
    <message>
        <source>no command of %1 is known yet; start it once with &quot;mouse-gestures %1&quot;</source>
        <translation>aucune commande de %1 n’est encore connue ; lancez-le une fois avec « mouse-gestures %1 »</translation>
    </message>
    <message>
        <source>%1 has never shown a command &quot;%2&quot;; mouse-gestures --list-commands %1 says which it has</source>
        <translation>%1 n’a jamais montré de commande « %2 » ; mouse-gestures --list-commands %1 dit lesquelles il a</translation>
    </message>
    <message>
        <source>several commands are called &quot;%1&quot;: %2</source>
        <translation>plusieurs commandes s’appellent « %1 » : %2</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>%1 gestures (in use)</source>
        <translation>%1 gestes (en service)</translation>
    </message>
    <message>
        <source>%1 gestures</source>
        <translation>%1 gestes</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1 : ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>%1: this is not a file</source>
        <translation>%1 : ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>%1: this is too long for bindings</source>
        <translation>%1 : c’est trop long pour des affectations</translation>
    </message>
    <message>
        <source>this was changed elsewhere meanwhile, so it stays</source>
        <translation>cela a été modifié ailleurs entre-temps et reste donc</translation>
    </message>
    <message>
        <source>gestures in %1: on</source>
        <translation>gestes dans %1 : activés</translation>
    </message>
    <message>
        <source>gestures in %1: off</source>
        <translation>gestes dans %1 : désactivés</translation>
    </message>
    <message>
        <source>started with: %1 (default)</source>
        <translation>déclencheur : %1 (par défaut)</translation>
    </message>
    <message>
        <source>started with: %1</source>
        <translation>déclencheur : %1</translation>
    </message>
    <message>
        <source>a command&apos;s identifier has no control characters</source>
        <translation>l’identifiant d’une commande n’a pas de caractères de contrôle</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the %2 directions: %3</source>
        <translation>« %1 » n’est pas l’une des %2 directions : %3</translation>
    </message>
    <message>
        <source>%1 has not run with gestures yet; if it has no command &quot;%2&quot;, the direction becomes empty</source>
        <translation>%1 n’a pas encore tourné avec les gestes ; s’il n’a pas de commande « %2 », la direction devient vide</translation>
    </message>
    <message>
        <source>gestures are still started with: %1</source>
        <translation>le déclencheur reste : %1</translation>
    </message>
    <message>
        <source>%1, so nothing is imported</source>
        <translation>%1, rien n’est donc importé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger, such as right, middle or ctrl+right; &quot;default&quot; is the program&apos;s usual one</source>
        <translation>« %1 » ne nomme pas de déclencheur tel que right, middle ou ctrl+right ; « default » est celui du programme</translation>
    </message>
    <message>
        <source>the left button alone is for drawing, add a key to it, such as ctrl+left</source>
        <translation>le bouton gauche seul sert à dessiner, ajoutez une touche, par exemple ctrl+left</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>Gestes de la souris dans %1</translation>
    </message>
    <message>
        <source>Hold %1 and drag. Move on towards a command, or let go to do nothing.</source>
        <translation>Maintenez %1 et faites glisser. Continuez vers une commande, ou relâchez pour ne rien faire.</translation>
    </message>
    <message>
        <source>the left button</source>
        <translation>le bouton gauche</translation>
    </message>
    <message>
        <source>the middle button</source>
        <translation>le bouton central</translation>
    </message>
    <message>
        <source>the right button</source>
        <translation>le bouton droit</translation>
    </message>
    <message>
        <source>the back button</source>
        <translation>le bouton Précédent</translation>
    </message>
    <message>
        <source>the forward button</source>
        <translation>le bouton Suivant</translation>
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
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>up</source>
        <translation>haut</translation>
    </message>
    <message>
        <source>up left</source>
        <translation>haut gauche</translation>
    </message>
    <message>
        <source>left</source>
        <translation>gauche</translation>
    </message>
    <message>
        <source>down left</source>
        <translation>bas gauche</translation>
    </message>
    <message>
        <source>down</source>
        <translation>bas</translation>
    </message>
    <message>
        <source>down right</source>
        <translation>bas droite</translation>
    </message>
    <message>
        <source>right</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>up right</source>
        <translation>haut droite</translation>
    </message>
    <message>
        <source>They are switched off at the moment.</source>
        <translation>Ils sont désactivés pour le moment.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>%1: a sheet is a PDF, so its file ends in .pdf</source>
        <translation>%1 : une feuille est un PDF, son fichier se termine donc par .pdf</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 n’est pas installé</translation>
    </message>
    <message>
        <source>the sheet could not be drawn: %1</source>
        <translation>la feuille n’a pas pu être dessinée : %1</translation>
    </message>
    <message>
        <source>give a task, such as FreeCAD&apos;s SketcherWorkbench, a ring of its own, or the shared one again</source>
        <translation>donner à une tâche, comme SketcherWorkbench de FreeCAD, son propre anneau, ou de nouveau l’anneau commun</translation>
    </message>
    <message>
        <source>start it without gestures if it cannot have them</source>
        <translation>le lancer sans gestes s’ils sont impossibles</translation>
    </message>
    <message>
        <source>the profile of this program knows no tasks</source>
        <translation>le profil de ce programme ne connaît aucune tâche</translation>
    </message>
    <message>
        <source>there is no task &quot;%1&quot;; known ones are %2</source>
        <translation>la tâche « %1 » n’existe pas ; sont connues : %2</translation>
    </message>
    <message>
        <source>bindings</source>
        <translation>affect.</translation>
    </message>
    <message>
        <source>, by %1</source>
        <translation>, selon %1</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 selon %2</translation>
    </message>
    <message>
        <source>%1, as suits the drawings</source>
        <translation>%1, selon les dessins</translation>
    </message>
    <message>
        <source>%1; ctrl+right if OpenGL paints the drawing</source>
        <translation>%1 ; ctrl+right si OpenGL peint le dessin</translation>
    </message>
    <message>
        <source>%1 has no ring of its own, see mouse-gestures --ring</source>
        <translation>%1 n’a pas d’anneau propre, voir mouse-gestures --ring</translation>
    </message>
    <message>
        <source>ring of %1</source>
        <translation>anneau de %1</translation>
    </message>
    <message>
        <source>a ring is &quot;own&quot; or &quot;shared&quot;, not &quot;%1&quot;</source>
        <translation>un anneau est « own » ou « shared », pas « %1 »</translation>
    </message>
    <message>
        <source>%1 in no file</source>
        <translation>%1 dans aucun fichier</translation>
    </message>
    <message>
        <source>switch gestures on again, after a crash or when they are switched off in the settings</source>
        <translation>réactiver les gestes, après un plantage ou s’ils sont désactivés dans les réglages</translation>
    </message>
    <message>
        <source>off since %1 crashed in their code; to switch them on: mouse-gestures --switch-on %1</source>
        <translation>désactivés depuis que %1 a planté dans leur code ; pour les activer : mouse-gestures --switch-on %1</translation>
    </message>
    <message>
        <source>put a command into a direction. COMMAND is its identifier or its caption, or &quot;none&quot;. DIRECTION is up, left, down or right; with eight gestures also up-left, down-left, down-right or up-right</source>
        <translation>mettre une commande dans une direction. COMMAND est son identifiant, son intitulé ou « none ». DIRECTION est up, left, down ou right ; avec huit gestes aussi up-left, down-left, down-right ou up-right</translation>
    </message>
    <message>
        <source>With --ring TASK at its end, --bind, --export, --import, --print or --reset is about the ring of that task alone.</source>
        <translation>Avec --ring TASK à la fin, --bind, --export, --import, --print ou --reset ne concerne que l’anneau de cette tâche.</translation>
    </message>
    <message>
        <source>names no task</source>
        <translation>ne nomme aucune tâche</translation>
    </message>
    <message>
        <source>the profile %1 is not used: its name must be %2</source>
        <translation>le profil %1 n’est pas utilisé : son nom doit être %2</translation>
    </message>
</context>
</TS>
