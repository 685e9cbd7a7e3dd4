<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>MgCommandDSModel</name>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Gesto</translation>
    </message>
</context>
<context>
    <name>MgCommandModelDelegate</name>
    <message>
        <source>Gesture direction</source>
        <translation>Dirección del gesto</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManager</name>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>All Commands</source>
        <translation>Todos los comandos</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Click to sort, or press Ctrl+1, Ctrl+2 or Ctrl+3</source>
        <translation>Pulse para ordenar, o use Ctrl+1, Ctrl+2 o Ctrl+3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Taken from: %1</source>
        <translation>Quitado a: %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>This will delete all of the user defined mouse gestures and reset to the factory defaults. Do you want to continue?</source>
        <translation>Se eliminarán todos los gestos del ratón definidos por el usuario y se restablecerán los valores predeterminados. ¿Desea continuar?</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManagerClass</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>Gestos del ratón</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Categoría:</translation>
    </message>
    <message>
        <source>Mouse Gesture assigned commands</source>
        <translation>Comandos con gesto asignado</translation>
    </message>
    <message>
        <source>Search for:</source>
        <translation>Buscar:</translation>
    </message>
    <message>
        <source>Enable mouse gestures</source>
        <translation>Activar los gestos del ratón</translation>
    </message>
    <message>
        <source>4 Gestures</source>
        <translation>4 gestos</translation>
    </message>
    <message>
        <source>8 Gestures</source>
        <translation>8 gestos</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Print List</source>
        <translation>Imprimir lista</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Search for commands</source>
        <translation>Buscar comandos</translation>
    </message>
    <message>
        <source>Commands and their gestures</source>
        <translation>Comandos y sus gestos</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogPVStyleImpl</name>
    <message>
        <source>Mouse gesture</source>
        <translation>Gesto del ratón</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name of a command, what it does</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Others</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>Mouse Gestures...</source>
        <translation>Gestos del ratón...</translation>
    </message>
    <message>
        <source>Customizes mouse gestures:</source>
        <translation>Personaliza los gestos del ratón:</translation>
    </message>
</context>
</TS>
