<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>MgCommandDSModel</name>
    <message>
        <source>Category</source>
        <translation>Категория</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Команда</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Жест</translation>
    </message>
</context>
<context>
    <name>MgCommandModelDelegate</name>
    <message>
        <source>Gesture direction</source>
        <translation>Направление жеста</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManager</name>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Вверх и влево</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Влево</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Вниз и влево</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Вниз и вправо</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Вправо</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Вверх и вправо</translation>
    </message>
    <message>
        <source>All Commands</source>
        <translation>Все команды</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Click to sort, or press Ctrl+1, Ctrl+2 or Ctrl+3</source>
        <translation>Щёлкните для сортировки или нажмите Ctrl+1, Ctrl+2 или Ctrl+3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Taken from: %1</source>
        <translation>Отобрано у: %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>This will delete all of the user defined mouse gestures and reset to the factory defaults. Do you want to continue?</source>
        <translation>Все настроенные вами жесты мыши будут удалены и заменены стандартными. Продолжить?</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManagerClass</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>Жесты мыши</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Категория:</translation>
    </message>
    <message>
        <source>Mouse Gesture assigned commands</source>
        <translation>Только команды с жестом</translation>
    </message>
    <message>
        <source>Search for:</source>
        <translation>Поиск:</translation>
    </message>
    <message>
        <source>Enable mouse gestures</source>
        <translation>Включить жесты мыши</translation>
    </message>
    <message>
        <source>4 Gestures</source>
        <translation>4 жеста</translation>
    </message>
    <message>
        <source>8 Gestures</source>
        <translation>8 жестов</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Сбросить настройки</translation>
    </message>
    <message>
        <source>Print List</source>
        <translation>Печать списка</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Категория</translation>
    </message>
    <message>
        <source>Search for commands</source>
        <translation>Поиск команд</translation>
    </message>
    <message>
        <source>Commands and their gestures</source>
        <translation>Команды и их жесты</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogPVStyleImpl</name>
    <message>
        <source>Mouse gesture</source>
        <translation>Жест мыши</translation>
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
        <translation>Прочее</translation>
    </message>
    <message>
        <source>Mouse Gestures...</source>
        <translation>Жесты мыши...</translation>
    </message>
    <message>
        <source>Customizes mouse gestures:</source>
        <translation>Настраивает жесты мыши:</translation>
    </message>
</context>
</TS>
