<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>MgCommandDSModel</name>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Geste</translation>
    </message>
</context>
<context>
    <name>MgCommandModelDelegate</name>
    <message>
        <source>Gesture direction</source>
        <translation>Direction du geste</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManager</name>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Haut gauche</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Bas gauche</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Bas droite</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Haut droite</translation>
    </message>
    <message>
        <source>All Commands</source>
        <translation>Toutes les commandes</translation>
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
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Click to sort, or press Ctrl+1, Ctrl+2 or Ctrl+3</source>
        <translation>Cliquez pour trier, ou appuyez sur Ctrl+1, Ctrl+2 ou Ctrl+3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Taken from: %1</source>
        <translation>Retiré à : %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>This will delete all of the user defined mouse gestures and reset to the factory defaults. Do you want to continue?</source>
        <translation>Tous les gestes de la souris que vous avez définis seront supprimés et remplacés par les valeurs par défaut. Voulez-vous continuer ?</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManagerClass</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>Gestes de la souris</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Catégorie :</translation>
    </message>
    <message>
        <source>Mouse Gesture assigned commands</source>
        <translation>Commandes avec un geste</translation>
    </message>
    <message>
        <source>Search for:</source>
        <translation>Rechercher :</translation>
    </message>
    <message>
        <source>Enable mouse gestures</source>
        <translation>Activer les gestes de la souris</translation>
    </message>
    <message>
        <source>4 Gestures</source>
        <translation>4 gestes</translation>
    </message>
    <message>
        <source>8 Gestures</source>
        <translation>8 gestes</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Valeurs par défaut</translation>
    </message>
    <message>
        <source>Print List</source>
        <translation>Imprimer la liste</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Search for commands</source>
        <translation>Rechercher des commandes</translation>
    </message>
    <message>
        <source>Commands and their gestures</source>
        <translation>Commandes et leurs gestes</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogPVStyleImpl</name>
    <message>
        <source>Mouse gesture</source>
        <translation>Geste de la souris</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name of a command, what it does</comment>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>Mouse Gestures...</source>
        <translation>Gestes de la souris...</translation>
    </message>
    <message>
        <source>Customizes mouse gestures:</source>
        <translation>Personnalise les gestes de la souris :</translation>
    </message>
</context>
</TS>
