<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>MgCommandDSModel</name>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
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
        <translation>Direção do gesto</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManager</name>
    <message>
        <source>Up</source>
        <translation>Para cima</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Para cima à esquerda</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Para baixo à esquerda</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Para baixo</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Para baixo à direita</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Para cima à direita</translation>
    </message>
    <message>
        <source>All Commands</source>
        <translation>Todos os comandos</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Click to sort, or press Ctrl+1, Ctrl+2 or Ctrl+3</source>
        <translation>Clique para ordenar ou pressione Ctrl+1, Ctrl+2 ou Ctrl+3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Taken from: %1</source>
        <translation>Retirado de: %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>This will delete all of the user defined mouse gestures and reset to the factory defaults. Do you want to continue?</source>
        <translation>Todos os gestos do mouse definidos pelo usuário serão excluídos e os padrões serão restaurados. Deseja continuar?</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManagerClass</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>Gestos do mouse</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Categoria:</translation>
    </message>
    <message>
        <source>Mouse Gesture assigned commands</source>
        <translation>Comandos com gesto</translation>
    </message>
    <message>
        <source>Search for:</source>
        <translation>Procurar:</translation>
    </message>
    <message>
        <source>Enable mouse gestures</source>
        <translation>Ativar gestos do mouse</translation>
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
        <translation>Restaurar padrões</translation>
    </message>
    <message>
        <source>Print List</source>
        <translation>Imprimir lista</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>Search for commands</source>
        <translation>Procurar comandos</translation>
    </message>
    <message>
        <source>Commands and their gestures</source>
        <translation>Comandos e seus gestos</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogPVStyleImpl</name>
    <message>
        <source>Mouse gesture</source>
        <translation>Gesto do mouse</translation>
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
        <translation>Outros</translation>
    </message>
    <message>
        <source>Mouse Gestures...</source>
        <translation>Gestos do mouse...</translation>
    </message>
    <message>
        <source>Customizes mouse gestures:</source>
        <translation>Personaliza os gestos do mouse:</translation>
    </message>
</context>
</TS>
