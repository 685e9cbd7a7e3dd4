<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>host</name>
    <message>
        <source>The program has no command &quot;%1&quot;; its direction is empty.</source>
        <translation>В программе нет команды «%1»; её направление пусто.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>Команды «%1» нет.</translation>
    </message>
    <message>
        <source>%1: cannot be used at the moment.</source>
        <translation>%1: сейчас нельзя использовать.</translation>
    </message>
    <message>
        <source>%1: not available at the moment.</source>
        <translation>%1: сейчас недоступно.</translation>
    </message>
    <message>
        <source>The toolbar &quot;%1&quot; does not have it now.</source>
        <translation>На панели «%1» её сейчас нет.</translation>
    </message>
    <message>
        <source>It belongs to the toolbar &quot;%1&quot;, which is not there now.</source>
        <translation>Она находится на панели «%1», которой сейчас нет.</translation>
    </message>
    <message>
        <source>The menu &quot;%1&quot; does not have it now.</source>
        <translation>В меню «%1» её сейчас нет.</translation>
    </message>
    <message>
        <source>It belongs to the menu &quot;%1&quot;, which is not there now.</source>
        <translation>Она находится в меню «%1», которого сейчас нет.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Линия</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Смещение</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Обрезать</translation>
    </message>
    <message>
        <source>Zoom to Fit</source>
        <translation>Показать всё</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>С&amp;ервис</translation>
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
        <source>The guide to mouse gestures cannot be opened.</source>
        <translation>Не удалось открыть руководство по жестам мыши.</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
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
        <source>left button</source>
        <translation>левая кнопка</translation>
    </message>
    <message>
        <source>middle button</source>
        <translation>средняя кнопка</translation>
    </message>
    <message>
        <source>right button</source>
        <translation>правая кнопка</translation>
    </message>
    <message>
        <source>back button</source>
        <translation>кнопка «назад»</translation>
    </message>
    <message>
        <source>forward button</source>
        <translation>кнопка «вперёд»</translation>
    </message>
    <message>
        <source>Mouse gestures start with %1. Set it by mouse-gestures --trigger %2</source>
        <translation>Жесты мышью начинаются так: %1. Изменить: mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>Это кольцо для всех задач.</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>Это кольцо для задачи %1.</translation>
    </message>
</context>
</TS>
