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
        <source>Mouse gestures start with: %1. To change it: &quot;Mouse Gestures&quot; in the desktop&apos;s menu, or mouse-gestures --trigger %2</source>
        <translation>Les gestes de souris commencent par : %1. Pour changer : « Gestes de la souris » dans le menu du bureau, ou mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>C’est l’anneau de toutes les tâches.</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>C’est l’anneau de %1.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>shortcut &quot;%1&quot;</source>
        <translation>raccourci « %1 »</translation>
    </message>
    <message>
        <source>icon &quot;%1&quot;</source>
        <translation>icône « %1 »</translation>
    </message>
    <message>
        <source>object name &quot;%1&quot;</source>
        <translation>nom d’objet « %1 »</translation>
    </message>
    <message>
        <source>caption &quot;%1&quot;</source>
        <translation>libellé « %1 »</translation>
    </message>
    <message>
        <source>it is a text editor</source>
        <translation>c’est un éditeur de texte</translation>
    </message>
    <message>
        <source>it is an item view</source>
        <translation>c’est une liste ou un tableau</translation>
    </message>
    <message>
        <source>it is a frame for others</source>
        <translation>c’est un cadre pour d’autres</translation>
    </message>
    <message>
        <source>it is a control</source>
        <translation>c’est un élément de commande</translation>
    </message>
    <message>
        <source>it shows web pages</source>
        <translation>il montre des pages web</translation>
    </message>
    <message>
        <source>it is a start page by its name</source>
        <translation>une page d’accueil d’après son nom</translation>
    </message>
    <message>
        <source>it is the viewport of %1</source>
        <translation>c’est la partie visible de %1</translation>
    </message>
    <message>
        <source>it is inside %1</source>
        <translation>il est à l’intérieur de %1</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>il n’est pas visible</translation>
    </message>
    <message>
        <source>it is too small</source>
        <translation>il est trop petit</translation>
    </message>
    <message>
        <source>it is a plain %1, which paints nothing</source>
        <translation>c’est un simple %1, qui ne peint rien</translation>
    </message>
    <message>
        <source>it is filled by another, %1</source>
        <translation>un autre le remplit : %1</translation>
    </message>
    <message>
        <source>it is a text editor by the way it takes text</source>
        <translation>il accepte du texte comme un éditeur</translation>
    </message>
    <message>
        <source>it is a table by its header</source>
        <translation>un tableau d’après son en-tête</translation>
    </message>
    <message>
        <source>it is a page of controls</source>
        <translation>c’est une page d’éléments de commande</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area</source>
        <translation>le contenu d’une zone défilante qui remplit %1 % de la surface</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area</source>
        <translation>il se peint lui-même et remplit %1 % de la surface</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>le contenu d’une zone défilante qui remplit %1 % de la surface, où rien d’autre ne peut montrer un dessin</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>il se peint lui-même et remplit %1 % de la surface, où rien d’autre ne peut montrer un dessin</translation>
    </message>
    <message>
        <source>it fills %1 % of the area only</source>
        <translation>il ne remplit que %1 % de la surface</translation>
    </message>
    <message>
        <source>it is not in the middle of a main window</source>
        <translation>il n’est pas au milieu d’une fenêtre principale</translation>
    </message>
    <message>
        <source>it is part of a form that is being designed</source>
        <translation>il fait partie d’un formulaire en cours de conception</translation>
    </message>
    <message>
        <source>it is a graphics view</source>
        <translation>c’est une vue graphique</translation>
    </message>
    <message>
        <source>it is a surface of the graphics library or of a window</source>
        <translation>c’est une surface de la bibliothèque graphique ou d’une fenêtre</translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>chosen at an earlier start</source>
        <translation>choisi lors d’un démarrage précédent</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>the profile names its class %1</source>
        <translation>le profil nomme sa classe %1</translation>
    </message>
    <message>
        <source>window</source>
        <translation>fenêtre</translation>
    </message>
    <message>
        <source>view</source>
        <translation>vue</translation>
    </message>
    <message>
        <source>none, perhaps before a drawing is open</source>
        <translation>aucune, peut-être avant l’ouverture d’un dessin</translation>
    </message>
    <message>
        <source>left to be guessed, a class of Qt&apos;s own says too little</source>
        <translation>à deviner : une classe de Qt en dit trop peu</translation>
    </message>
    <message>
        <source>view classes</source>
        <translation>classes des vues</translation>
    </message>
    <message>
        <source>no view</source>
        <translation>pas une vue</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>déclencheur</translation>
    </message>
    <message>
        <source>one is made, since no menu of the menu bar is called Tools</source>
        <translation>créé, car aucun menu de la barre ne s’appelle Outils</translation>
    </message>
    <message>
        <source>the profile names it</source>
        <translation>le profil le nomme</translation>
    </message>
    <message>
        <source>its object name says so</source>
        <translation>selon son nom d’objet</translation>
    </message>
    <message>
        <source>its caption &quot;%1&quot; says so</source>
        <translation>selon son libellé « %1 »</translation>
    </message>
    <message>
        <source>Tools menu</source>
        <translation>menu Outils</translation>
    </message>
    <message>
        <source>the profile names %1, which is not there at the moment</source>
        <translation>le profil nomme %1, absent pour le moment</translation>
    </message>
    <message>
        <source>the action itself is called so</source>
        <translation>l’action elle-même s’appelle ainsi</translation>
    </message>
    <message>
        <source>no action has a matching shortcut, icon, object name or caption</source>
        <translation>aucune action n’a de raccourci, d’icône, de nom d’objet ou de libellé qui convienne</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>%1 cannot be written, new commands are forgotten</source>
        <translation>impossible d’écrire %1, les nouvelles commandes sont oubliées</translation>
    </message>
    <message>
        <source>%1 is damaged, %2 is used</source>
        <translation>%1 est endommagé, %2 est utilisé</translation>
    </message>
    <message>
        <source>%1 is damaged, and there is no good copy of it</source>
        <translation>%1 est endommagé et il n’en existe pas de bonne copie</translation>
    </message>
    <message>
        <source>%1 is too large, its commands are not offered</source>
        <translation>%1 est trop grand, ses commandes ne sont pas proposées</translation>
    </message>
    <message>
        <source>%1 cannot be read, its commands are not offered</source>
        <translation>impossible de lire %1, ses commandes ne sont pas proposées</translation>
    </message>
    <message>
        <source>%1 is of a later version (%2), its commands are not offered</source>
        <translation>%1 vient d’une version plus récente (%2), ses commandes ne sont pas proposées</translation>
    </message>
    <message>
        <source>%1 is not a list of commands and is left alone</source>
        <translation>%1 n’est pas une liste de commandes et reste tel quel</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 à l’octet %2</translation>
    </message>
    <message>
        <source>it is not an object</source>
        <translation>ce n’est pas un objet</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>clé inconnue « %1 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a string</source>
        <translation>« %1 » n’est pas un texte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list</source>
        <translation>« %1 » n’est pas une liste</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds something that is not a name</source>
        <translation>« %1 » contient autre chose qu’un nom</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an object</source>
        <translation>« %1 » n’est pas un objet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>« %1 » n’est ni true ni false</translation>
    </message>
    <message>
        <source>&quot;trigger.button&quot; names no mouse button: &quot;%1&quot;</source>
        <translation>« trigger.button » ne nomme aucun bouton de souris : « %1 »</translation>
    </message>
    <message>
        <source>&quot;trigger.modifiers&quot; names no key: &quot;%1&quot;</source>
        <translation>« trigger.modifiers » ne nomme aucune touche : « %1 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger: &quot;%2&quot;</source>
        <translation>« %1 » ne nomme aucun déclencheur : « %2 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a file and what is around the value</source>
        <translation>« %1 » a besoin d’un fichier et de ce qui entoure la valeur</translation>
    </message>
    <message>
        <source>&quot;%1.triggers.%2&quot; names no trigger</source>
        <translation>« %1.triggers.%2 » ne nomme aucun déclencheur</translation>
    </message>
    <message>
        <source>&quot;wellKnownCommands.%1&quot; names no action</source>
        <translation>« wellKnownCommands.%1 » ne nomme aucune action</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no direction</source>
        <translation>« %1 » n’est pas une direction</translation>
    </message>
    <message>
        <source>&quot;tasks&quot; names two ways to know the task</source>
        <translation>« tasks » donne deux façons de reconnaître la tâche</translation>
    </message>
    <message>
        <source>&quot;tasks.firstBindings.%1&quot; is not an object</source>
        <translation>« tasks.firstBindings.%1 » n’est pas un objet</translation>
    </message>
    <message>
        <source>&quot;version&quot; is missing or not a number</source>
        <translation>« version » manque ou n’est pas un nombre</translation>
    </message>
    <message>
        <source>version %1 is not known</source>
        <translation>la version %1 n’est pas connue</translation>
    </message>
    <message>
        <source>&quot;program&quot; is &quot;%1&quot;, not &quot;%2&quot;</source>
        <translation>« program » est « %1 » et non « %2 »</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>il est trop long</translation>
    </message>
    <message>
        <source>the profile %1 is not used: %2</source>
        <translation>le profil %1 n’est pas utilisé : %2</translation>
    </message>
    <message>
        <source>%1 cannot be read, its bindings are not used</source>
        <translation>impossible de lire %1, ses affectations ne sont pas utilisées</translation>
    </message>
    <message>
        <source>%1 was damaged and is restored from %2</source>
        <translation>%1 était endommagé et est rétabli à partir de %2</translation>
    </message>
    <message>
        <source>%1 is not a file, so no copy of the settings is kept</source>
        <translation>%1 n’est pas un fichier, aucune copie des réglages n’est donc gardée</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>impossible d’écrire %1</translation>
    </message>
    <message>
        <source>%1 cannot be written, since another program holds %1.lock</source>
        <translation>impossible d’écrire %1, car un autre programme tient %1.lock</translation>
    </message>
    <message>
        <source>it has no widgets</source>
        <translation>il n’a pas de widgets</translation>
    </message>
    <message>
        <source>it brings gestures of its own</source>
        <translation>il apporte ses propres gestes</translation>
    </message>
    <message>
        <source>%1 cannot be written, changes last until the program ends</source>
        <translation>impossible d’écrire %1, les changements durent jusqu’à la fin du programme</translation>
    </message>
    <message>
        <source>a host that was stopped cannot start again</source>
        <translation>un hôte arrêté ne peut pas redémarrer</translation>
    </message>
    <message>
        <source>this program has a host already</source>
        <translation>ce programme a déjà un hôte</translation>
    </message>
    <message>
        <source>there is no main window to host</source>
        <translation>il n’y a pas de fenêtre principale à héberger</translation>
    </message>
    <message>
        <source>it is not a library</source>
        <translation>ce n’est pas une bibliothèque</translation>
    </message>
    <message>
        <source>it is cut short</source>
        <translation>il est tronqué</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>une exception inconnue</translation>
    </message>
    <message>
        <source>there is no module &apos;%1&apos;</source>
        <translation>il n’y a pas de module « %1 »</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; cannot be loaded: %2</source>
        <translation>impossible de charger le module « %1 » : %2</translation>
    </message>
    <message>
        <source>the module cannot be loaded: %1</source>
        <translation>impossible de charger le module : %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a module: it lacks %2</source>
        <translation>« %1 » n’est pas un module : il manque %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; failed to name its version: %2</source>
        <translation>le module « %1 » n’a pas pu donner sa version : %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; is for version %2 of the platform, this is %3</source>
        <translation>le module « %1 » est pour la version %2 de la plateforme, celle-ci est %3</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not be created: %2</source>
        <translation>le module « %1 » n’a pas pu être créé : %2</translation>
    </message>
    <message>
        <source>it gave no object</source>
        <translation>il n’a donné aucun objet</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not start: %2</source>
        <translation>le module « %1 » n’a pas pu démarrer : %2</translation>
    </message>
    <message>
        <source>the profile says so</source>
        <translation>selon le profil</translation>
    </message>
    <message>
        <source>nothing says otherwise</source>
        <translation>rien ne dit le contraire</translation>
    </message>
    <message>
        <source>the settings say so</source>
        <translation>selon les réglages</translation>
    </message>
    <message>
        <source>the settings name no trigger: &quot;%1&quot;</source>
        <translation>les réglages ne nomment aucun déclencheur : « %1 »</translation>
    </message>
    <message>
        <source>OpenGL paints the drawing, and such programs need the right button</source>
        <translation>OpenGL peint le dessin, et ces programmes ont besoin du bouton droit</translation>
    </message>
    <message>
        <source>the program itself is set to %1</source>
        <translation>le programme lui-même est réglé sur %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty</source>
        <translation>« %1 » est vide</translation>
    </message>
    <message>
        <source>gestures are off, since %1 crashed in their code; to switch them on: %2</source>
        <translation>les gestes sont désactivés depuis que %1 a planté dans leur code ; pour les activer : %2</translation>
    </message>
    <message>
        <source>remove %1 from %2</source>
        <translation>retirer %1 de %2</translation>
    </message>
</context>
</TS>
