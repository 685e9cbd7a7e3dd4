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
        <source>Mouse gestures start with: %1. To change it: &quot;Mouse Gestures&quot; in the desktop&apos;s menu, or mouse-gestures --trigger %2</source>
        <translation>Жесты мышью начинаются так: %1. Изменить: «Жесты мыши» в меню рабочего стола или mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>Это кольцо для всех задач.</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>Это кольцо для задачи %1.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>shortcut &quot;%1&quot;</source>
        <translation>сочетание клавиш «%1»</translation>
    </message>
    <message>
        <source>icon &quot;%1&quot;</source>
        <translation>значок «%1»</translation>
    </message>
    <message>
        <source>object name &quot;%1&quot;</source>
        <translation>имя объекта «%1»</translation>
    </message>
    <message>
        <source>caption &quot;%1&quot;</source>
        <translation>надпись «%1»</translation>
    </message>
    <message>
        <source>it is a text editor</source>
        <translation>это текстовый редактор</translation>
    </message>
    <message>
        <source>it is an item view</source>
        <translation>это список или таблица</translation>
    </message>
    <message>
        <source>it is a frame for others</source>
        <translation>это рамка для других</translation>
    </message>
    <message>
        <source>it is a control</source>
        <translation>это элемент управления</translation>
    </message>
    <message>
        <source>it shows web pages</source>
        <translation>он показывает веб-страницы</translation>
    </message>
    <message>
        <source>it is a start page by its name</source>
        <translation>судя по имени, начальная страница</translation>
    </message>
    <message>
        <source>it is the viewport of %1</source>
        <translation>это видимая часть %1</translation>
    </message>
    <message>
        <source>it is inside %1</source>
        <translation>он внутри %1</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>он не виден</translation>
    </message>
    <message>
        <source>it is too small</source>
        <translation>он слишком мал</translation>
    </message>
    <message>
        <source>it is a plain %1, which paints nothing</source>
        <translation>это простой %1, который ничего не рисует</translation>
    </message>
    <message>
        <source>it is filled by another, %1</source>
        <translation>его заполняет другой: %1</translation>
    </message>
    <message>
        <source>it is a text editor by the way it takes text</source>
        <translation>он принимает текст как редактор</translation>
    </message>
    <message>
        <source>it is a table by its header</source>
        <translation>судя по заголовку, таблица</translation>
    </message>
    <message>
        <source>it is a page of controls</source>
        <translation>это страница элементов управления</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area</source>
        <translation>содержимое области прокрутки, занимающей %1 % площади</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area</source>
        <translation>он рисует себя сам и занимает %1 % площади</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>содержимое области прокрутки, занимающей %1 % площади, где больше ничто не может показать чертёж</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>он рисует себя сам и занимает %1 % площади, где больше ничто не может показать чертёж</translation>
    </message>
    <message>
        <source>it fills %1 % of the area only</source>
        <translation>он занимает лишь %1 % площади</translation>
    </message>
    <message>
        <source>it is not in the middle of a main window</source>
        <translation>он не в середине главного окна</translation>
    </message>
    <message>
        <source>it is part of a form that is being designed</source>
        <translation>он часть разрабатываемой формы</translation>
    </message>
    <message>
        <source>it is a graphics view</source>
        <translation>это графический вид</translation>
    </message>
    <message>
        <source>it is a surface of the graphics library or of a window</source>
        <translation>это поверхность графической библиотеки или окна</translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>chosen at an earlier start</source>
        <translation>выбрано при прежнем запуске программы</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the profile names its class %1</source>
        <translation>профиль называет его класс %1</translation>
    </message>
    <message>
        <source>window</source>
        <translation>окно</translation>
    </message>
    <message>
        <source>view</source>
        <translation>вид</translation>
    </message>
    <message>
        <source>none, perhaps before a drawing is open</source>
        <translation>нет; возможно, чертёж ещё не открыт</translation>
    </message>
    <message>
        <source>left to be guessed, a class of Qt&apos;s own says too little</source>
        <translation>остаётся догадкам: класс самой Qt говорит слишком мало</translation>
    </message>
    <message>
        <source>view classes</source>
        <translation>классы видов</translation>
    </message>
    <message>
        <source>no view</source>
        <translation>не вид</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>запуск</translation>
    </message>
    <message>
        <source>one is made, since no menu of the menu bar is called Tools</source>
        <translation>создаётся: на панели нет меню «Инструменты»</translation>
    </message>
    <message>
        <source>the profile names it</source>
        <translation>так сказано в профиле</translation>
    </message>
    <message>
        <source>its object name says so</source>
        <translation>судя по имени объекта</translation>
    </message>
    <message>
        <source>its caption &quot;%1&quot; says so</source>
        <translation>судя по надписи «%1»</translation>
    </message>
    <message>
        <source>Tools menu</source>
        <translation>меню «Инструменты»</translation>
    </message>
    <message>
        <source>the profile names %1, which is not there at the moment</source>
        <translation>профиль называет %1, чего сейчас нет</translation>
    </message>
    <message>
        <source>the action itself is called so</source>
        <translation>так называется само действие</translation>
    </message>
    <message>
        <source>no action has a matching shortcut, icon, object name or caption</source>
        <translation>ни у одного действия нет подходящего сочетания клавиш, значка, имени объекта или надписи</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>%1 cannot be written, new commands are forgotten</source>
        <translation>не удаётся записать %1, новые команды будут забыты</translation>
    </message>
    <message>
        <source>%1 is damaged, %2 is used</source>
        <translation>файл %1 повреждён, используется %2</translation>
    </message>
    <message>
        <source>%1 is damaged, and there is no good copy of it</source>
        <translation>файл %1 повреждён, и хорошей копии нет</translation>
    </message>
    <message>
        <source>%1 is too large, its commands are not offered</source>
        <translation>файл %1 слишком велик, его команды не предлагаются</translation>
    </message>
    <message>
        <source>%1 cannot be read, its commands are not offered</source>
        <translation>не удаётся прочитать %1, его команды не предлагаются</translation>
    </message>
    <message>
        <source>%1 is of a later version (%2), its commands are not offered</source>
        <translation>файл %1 от более новой версии (%2), его команды не предлагаются</translation>
    </message>
    <message>
        <source>%1 is not a list of commands and is left alone</source>
        <translation>файл %1 не является списком команд и остаётся как есть</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 в байте %2</translation>
    </message>
    <message>
        <source>it is not an object</source>
        <translation>это не объект</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>неизвестный ключ «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a string</source>
        <translation>«%1» не строка</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list</source>
        <translation>«%1» не список</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds something that is not a name</source>
        <translation>в «%1» есть то, что не является именем</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an object</source>
        <translation>«%1» не объект</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>«%1» не true и не false</translation>
    </message>
    <message>
        <source>&quot;trigger.button&quot; names no mouse button: &quot;%1&quot;</source>
        <translation>«trigger.button» не называет кнопку мыши: «%1»</translation>
    </message>
    <message>
        <source>&quot;trigger.modifiers&quot; names no key: &quot;%1&quot;</source>
        <translation>«trigger.modifiers» не называет клавишу: «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger: &quot;%2&quot;</source>
        <translation>«%1» не называет способ запуска: «%2»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a file and what is around the value</source>
        <translation>для «%1» нужны файл и текст вокруг значения</translation>
    </message>
    <message>
        <source>&quot;%1.triggers.%2&quot; names no trigger</source>
        <translation>«%1.triggers.%2» не называет способ запуска</translation>
    </message>
    <message>
        <source>&quot;wellKnownCommands.%1&quot; names no action</source>
        <translation>«wellKnownCommands.%1» не называет действие</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no direction</source>
        <translation>«%1» не направление</translation>
    </message>
    <message>
        <source>&quot;tasks&quot; names two ways to know the task</source>
        <translation>в «tasks» два способа узнать задачу</translation>
    </message>
    <message>
        <source>&quot;tasks.firstBindings.%1&quot; is not an object</source>
        <translation>«tasks.firstBindings.%1» не объект</translation>
    </message>
    <message>
        <source>&quot;version&quot; is missing or not a number</source>
        <translation>«version» отсутствует или не число</translation>
    </message>
    <message>
        <source>version %1 is not known</source>
        <translation>версия %1 неизвестна</translation>
    </message>
    <message>
        <source>&quot;program&quot; is &quot;%1&quot;, not &quot;%2&quot;</source>
        <translation>«program» равно «%1», а не «%2»</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>это не файл</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>он слишком длинный</translation>
    </message>
    <message>
        <source>the profile %1 is not used: %2</source>
        <translation>профиль %1 не используется: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read, its bindings are not used</source>
        <translation>не удаётся прочитать %1, его привязки не используются</translation>
    </message>
    <message>
        <source>%1 was damaged and is restored from %2</source>
        <translation>файл %1 был повреждён и восстановлен из %2</translation>
    </message>
    <message>
        <source>%1 is not a file, so no copy of the settings is kept</source>
        <translation>%1 не файл, поэтому копия настроек не хранится</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>не удаётся записать %1</translation>
    </message>
    <message>
        <source>%1 cannot be written, since another program holds %1.lock</source>
        <translation>не удаётся записать %1: другая программа держит %1.lock</translation>
    </message>
    <message>
        <source>it has no widgets</source>
        <translation>в ней нет виджетов</translation>
    </message>
    <message>
        <source>it brings gestures of its own</source>
        <translation>у неё есть собственные жесты</translation>
    </message>
    <message>
        <source>%1 cannot be written, changes last until the program ends</source>
        <translation>не удаётся записать %1, изменения действуют до выхода из программы</translation>
    </message>
    <message>
        <source>a host that was stopped cannot start again</source>
        <translation>остановленный хост не может запуститься снова</translation>
    </message>
    <message>
        <source>this program has a host already</source>
        <translation>у этой программы уже есть хост</translation>
    </message>
    <message>
        <source>there is no main window to host</source>
        <translation>нет главного окна для хоста</translation>
    </message>
    <message>
        <source>it is not a library</source>
        <translation>это не библиотека</translation>
    </message>
    <message>
        <source>it is cut short</source>
        <translation>он обрезан</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>неизвестное исключение</translation>
    </message>
    <message>
        <source>there is no module &apos;%1&apos;</source>
        <translation>нет модуля «%1»</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; cannot be loaded: %2</source>
        <translation>не удаётся загрузить модуль «%1»: %2</translation>
    </message>
    <message>
        <source>the module cannot be loaded: %1</source>
        <translation>не удаётся загрузить модуль: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a module: it lacks %2</source>
        <translation>«%1» не модуль: нет %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; failed to name its version: %2</source>
        <translation>модуль «%1» не назвал свою версию: %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; is for version %2 of the platform, this is %3</source>
        <translation>модуль «%1» для версии %2 платформы, а это %3</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not be created: %2</source>
        <translation>не удалось создать модуль «%1»: %2</translation>
    </message>
    <message>
        <source>it gave no object</source>
        <translation>он не дал объекта</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not start: %2</source>
        <translation>модуль «%1» не смог запуститься: %2</translation>
    </message>
    <message>
        <source>the profile says so</source>
        <translation>так в профиле</translation>
    </message>
    <message>
        <source>nothing says otherwise</source>
        <translation>ничто не говорит об ином</translation>
    </message>
    <message>
        <source>the settings say so</source>
        <translation>так в настройках</translation>
    </message>
    <message>
        <source>the settings name no trigger: &quot;%1&quot;</source>
        <translation>настройки не называют способ запуска: «%1»</translation>
    </message>
    <message>
        <source>OpenGL paints the drawing, and such programs need the right button</source>
        <translation>чертёж рисует OpenGL, а таким программам нужна правая кнопка</translation>
    </message>
    <message>
        <source>the program itself is set to %1</source>
        <translation>сама программа настроена на %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty</source>
        <translation>«%1» пусто</translation>
    </message>
    <message>
        <source>gestures are off, since %1 crashed in their code; to switch them on: %2</source>
        <translation>жесты выключены, так как в их коде произошёл сбой %1; чтобы включить: %2</translation>
    </message>
    <message>
        <source>remove %1 from %2</source>
        <translation>удалить %1 из %2</translation>
    </message>
</context>
</TS>
