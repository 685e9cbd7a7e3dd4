<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>launcher</name>
    <message>
        <source>show which command lies in which direction</source>
        <translation>показать, какая команда в каком направлении</translation>
    </message>
    <message>
        <source>show the commands that the program has shown so far</source>
        <translation>показать команды, которые программа уже показывала</translation>
    </message>
    <message>
        <source>choose what starts a gesture: right, middle, ctrl+right, ...; &quot;default&quot; is the usual trigger</source>
        <translation>выбрать, что начинает жест: right, middle, ctrl+right, ...; «default» — обычный способ</translation>
    </message>
    <message>
        <source>bring the first bindings back; the trigger stays</source>
        <translation>вернуть исходные назначения; способ запуска остаётся</translation>
    </message>
    <message>
        <source>write all bindings as JSON</source>
        <translation>записать все назначения в JSON</translation>
    </message>
    <message>
        <source>take over such a file, all of it or nothing</source>
        <translation>загрузить такой файл, целиком или никак</translation>
    </message>
    <message>
        <source>draw the ring with its commands, to pin on the wall</source>
        <translation>нарисовать кольцо с командами, чтобы повесить на стену</translation>
    </message>
    <message>
        <source>say whether gestures can work in the program</source>
        <translation>сообщить, могут ли жесты работать в программе</translation>
    </message>
    <message>
        <source>start the program, say what in it is taken for what and why, print that as a profile, end the program</source>
        <translation>запустить программу, сообщить, что в ней за что принято и почему, вывести это как профиль, завершить программу</translation>
    </message>
    <message>
        <source>start it with gestures from the desktop&apos;s menus too</source>
        <translation>запускать с жестами и из меню рабочего стола</translation>
    </message>
    <message>
        <source>start it from the desktop&apos;s menus as before</source>
        <translation>запускать из меню рабочего стола как раньше</translation>
    </message>
    <message>
        <source>usage: mouse-gestures %1 %2</source>
        <translation>использование: mouse-gestures %1 %2</translation>
    </message>
    <message>
        <source>unknown option %1, see mouse-gestures --help</source>
        <translation>неизвестный параметр %1, см. mouse-gestures --help</translation>
    </message>
    <message>
        <source>no program given, see mouse-gestures --help</source>
        <translation>программа не указана, см. mouse-gestures --help</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Использование:</translation>
    </message>
    <message>
        <source>Starts a drafting program with mouse gestures: hold the right button in the drawing, drag, and move on towards the command you want. &quot;Mouse Gestures...&quot; in the program&apos;s menus shows which command lies in which direction.</source>
        <translation>Запускает чертёжную программу с жестами мыши: удерживайте правую кнопку в чертеже, тяните и ведите дальше к нужной команде. «Жесты мыши...» в меню программы показывает, какая команда в каком направлении.</translation>
    </message>
    <message>
        <source>PROGRAM is any program made with Qt Widgets, 5 or 6. It is not changed. Without a program, a window opens in which a person can do all of this with the mouse.</source>
        <translation>PROGRAM — любая программа на Qt Widgets, 5 или 6. Она не изменяется. Без программы открывается окно, где всё это делается мышью.</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>показать этот текст</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>показать версию</translation>
    </message>
    <message>
        <source>the next word is the program, even if it starts with &quot;-&quot;</source>
        <translation>следующее слово — программа, даже если начинается с «-»</translation>
    </message>
    <message>
        <source>FILE may be &quot;-&quot; for standard output or standard input.</source>
        <translation>FILE может быть «-» — стандартный вывод или ввод.</translation>
    </message>
    <message>
        <source>Exit status of a started program: its own. 127: there is no such program. 126: it cannot be run with gestures. 125: mouse-gestures is not set up or not used correctly. An option exits with 1 when it could not be done; nothing is changed then.</source>
        <translation>Код завершения запущенной программы: её собственный. 127: такой программы нет. 126: её нельзя запустить с жестами. 125: mouse-gestures неверно установлен или вызван. Параметр завершается с кодом 1, если его не удалось выполнить; тогда ничего не меняется.</translation>
    </message>
    <message>
        <source>standard input cannot be read</source>
        <translation>не удаётся прочитать стандартный ввод</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>стандартный ввод</translation>
    </message>
    <message>
        <source>gestures cannot work well in %1, see the lines with &quot;!&quot;</source>
        <translation>жесты не смогут нормально работать в %1, см. строки с «!»</translation>
    </message>
    <message>
        <source>%1: there is no such program</source>
        <translation>%1: такой программы нет</translation>
    </message>
    <message>
        <source>standard output cannot be written</source>
        <translation>не удаётся записать стандартный вывод</translation>
    </message>
    <message>
        <source>warning: there is no X11 display; under Wayland the ring may open away from the pointer</source>
        <translation>внимание: нет экрана X11; под Wayland кольцо может открыться в стороне от указателя</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>To change any of it, edit this profile and keep it as %1</source>
        <translation>Чтобы изменить это, отредактируйте профиль и сохраните его как %1</translation>
    </message>
    <message>
        <source>%1 is your own and stays as it is</source>
        <translation>%1 — ваш собственный файл, он остаётся без изменений</translation>
    </message>
    <message>
        <source>%1: the desktop has no entry that starts it</source>
        <translation>%1: в меню рабочего стола нет пункта, который запускает эту программу</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>не удаётся прочитать %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>не удаётся записать %1</translation>
    </message>
    <message>
        <source>starts with gestures: %1</source>
        <translation>запускается с жестами: %1</translation>
    </message>
    <message>
        <source>%1 cannot be removed</source>
        <translation>не удаётся удалить %1</translation>
    </message>
    <message>
        <source>starts as before: %1 is removed</source>
        <translation>запускается как раньше: файл %1 удалён</translation>
    </message>
    <message>
        <source>%1: nothing was there to remove</source>
        <translation>%1: удалять было нечего</translation>
    </message>
    <message>
        <source>program</source>
        <translation>программа</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>plug-in</source>
        <translation>модуль</translation>
    </message>
    <message>
        <source>display</source>
        <translation>экран</translation>
    </message>
    <message>
        <source>compositor</source>
        <translation>композитор</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>профиль</translation>
    </message>
    <message>
        <source>views</source>
        <translation>виды</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>настройки</translation>
    </message>
    <message>
        <source>gestures</source>
        <translation>жесты</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>запуск</translation>
    </message>
    <message>
        <source>%1, not found</source>
        <translation>%1, не найдена</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not known before it runs: a script</source>
        <translation>неизвестно до запуска: это сценарий</translation>
    </message>
    <message>
        <source>none; gestures need a program made with Qt Widgets</source>
        <translation>нет; жестам нужна программа на Qt Widgets</translation>
    </message>
    <message>
        <source>not installed</source>
        <translation>не установлен</translation>
    </message>
    <message>
        <source>not installed for Qt %1</source>
        <translation>не установлен для Qt %1</translation>
    </message>
    <message>
        <source>Wayland without X11; the ring may open away from the pointer</source>
        <translation>Wayland без X11; кольцо может открыться в стороне от указателя</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>Wayland; the program will use X11, %1</source>
        <translation>Wayland; программа будет использовать X11, %1</translation>
    </message>
    <message>
        <source>X11, %1</source>
        <translation>X11, %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>работает</translation>
    </message>
    <message>
        <source>none; the ring shows what was under it when it opened</source>
        <translation>нет; кольцо показывает то, что было под ним при открытии</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>none of its own</source>
        <translation>своего нет</translation>
    </message>
    <message>
        <source>looked for in the running program, see --explain</source>
        <translation>ищутся в работающей программе, см. --explain</translation>
    </message>
    <message>
        <source>%1, by the profile</source>
        <translation>%1, по профилю</translation>
    </message>
    <message>
        <source>%1, cannot be written</source>
        <translation>%1, запись невозможна</translation>
    </message>
    <message>
        <source>%1, not there yet</source>
        <translation>%1, ещё не создан</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>выключены в настройках</translation>
    </message>
    <message>
        <source>on, %1 of them</source>
        <translation>включены, всего %1</translation>
    </message>
    <message>
        <source>it %1 before it had shown a main window with menus</source>
        <translation>программа %1, не показав главного окна с меню</translation>
    </message>
    <message>
        <source>it has not loaded the plug-in in %1 seconds</source>
        <translation>программа не загрузила модуль за %1 с</translation>
    </message>
    <message>
        <source>it has shown no main window with menus in %1 seconds; a dialog may be waiting</source>
        <translation>программа не показала главное окно с меню за %1 с; возможно, ждёт диалог</translation>
    </message>
    <message>
        <source>was ended by signal %1</source>
        <translation>завершена сигналом %1</translation>
    </message>
    <message>
        <source>ended with status %1</source>
        <translation>завершилась с кодом %1</translation>
    </message>
    <message>
        <source>%1: the file may not be executed</source>
        <translation>%1: этот файл нельзя выполнять</translation>
    </message>
    <message>
        <source>%1: this is a folder, not a program</source>
        <translation>%1: это папка, а не программа</translation>
    </message>
    <message>
        <source>%1: gestures need a program made with Qt Widgets, which this one is not</source>
        <translation>%1: жестам нужна программа на Qt Widgets, а эта не такая</translation>
    </message>
    <message>
        <source>the plug-in libmousegestures is not installed</source>
        <translation>модуль libmousegestures не установлен</translation>
    </message>
    <message>
        <source>%1 uses Qt %2, for which the plug-in libmousegestures-qt%2.so is not installed</source>
        <translation>%1 использует Qt %2, но модуль libmousegestures-qt%2.so не установлен</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice</source>
        <translation>«%1» встречается дважды</translation>
    </message>
    <message>
        <source>is not a key of such a file</source>
        <translation>не является ключом такого файла</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>отсутствует</translation>
    </message>
    <message>
        <source>is not an object</source>
        <translation>не является объектом</translation>
    </message>
    <message>
        <source>is not a string</source>
        <translation>не является строкой</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>содержит управляющий символ</translation>
    </message>
    <message>
        <source>has &quot;%1&quot;, which another direction has</source>
        <translation>содержит «%1», уже занятую другим направлением</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>строка %1: %2</translation>
    </message>
    <message>
        <source>line %1: this is nested too deeply for bindings</source>
        <translation>строка %1: слишком глубокая вложенность</translation>
    </message>
    <message>
        <source>line 1: it is not an object</source>
        <translation>строка 1: это не объект</translation>
    </message>
    <message>
        <source>is not %1</source>
        <translation>не равно %1</translation>
    </message>
    <message>
        <source>is not &quot;%1&quot;</source>
        <translation>не «%1»</translation>
    </message>
    <message>
        <source>is neither true nor false</source>
        <translation>не true и не false</translation>
    </message>
    <message>
        <source>names no button</source>
        <translation>не называет кнопку</translation>
    </message>
    <message>
        <source>is neither 4 nor 8</source>
        <translation>не 4 и не 8</translation>
    </message>
    <message>
        <source>no command of %1 is known yet; start it once with &quot;mouse-gestures %1&quot;</source>
        <translation>команды %1 ещё не известны; запустите программу один раз через «mouse-gestures %1»</translation>
    </message>
    <message>
        <source>%1 has never shown a command &quot;%2&quot;; mouse-gestures --list-commands %1 says which it has</source>
        <translation>%1 никогда не показывала команду «%2»; mouse-gestures --list-commands %1 покажет имеющиеся</translation>
    </message>
    <message>
        <source>several commands are called &quot;%1&quot;: %2</source>
        <translation>несколько команд называются «%1»: %2</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Прочее</translation>
    </message>
    <message>
        <source>%1 gestures (in use)</source>
        <translation>жестов: %1 (используются)</translation>
    </message>
    <message>
        <source>%1 gestures</source>
        <translation>жестов: %1</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1: такого файла нет</translation>
    </message>
    <message>
        <source>%1: this is not a file</source>
        <translation>%1: это не файл</translation>
    </message>
    <message>
        <source>%1: this is too long for bindings</source>
        <translation>%1: файл слишком велик</translation>
    </message>
    <message>
        <source>this was changed elsewhere meanwhile, so it stays</source>
        <translation>это тем временем изменили в другом месте, поэтому остаётся как есть</translation>
    </message>
    <message>
        <source>gestures in %1: on</source>
        <translation>жесты в %1: включены</translation>
    </message>
    <message>
        <source>gestures in %1: off</source>
        <translation>жесты в %1: выключены</translation>
    </message>
    <message>
        <source>started with: %1 (default)</source>
        <translation>запуск: %1 (по умолчанию)</translation>
    </message>
    <message>
        <source>started with: %1</source>
        <translation>запуск: %1</translation>
    </message>
    <message>
        <source>a command&apos;s identifier has no control characters</source>
        <translation>в идентификаторе команды нет управляющих символов</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the %2 directions: %3</source>
        <translation>«%1» не входит в %2 направлений: %3</translation>
    </message>
    <message>
        <source>%1 has not run with gestures yet; if it has no command &quot;%2&quot;, the direction becomes empty</source>
        <translation>%1 ещё не запускалась с жестами; если в ней нет команды «%2», направление станет пустым</translation>
    </message>
    <message>
        <source>gestures are still started with: %1</source>
        <translation>жесты по-прежнему запускаются так: %1</translation>
    </message>
    <message>
        <source>%1, so nothing is imported</source>
        <translation>%1, поэтому ничего не импортировано</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger, such as right, middle or ctrl+right; &quot;default&quot; is the program&apos;s usual one</source>
        <translation>«%1» не называет способ запуска, например right, middle или ctrl+right; «default» — обычный для программы</translation>
    </message>
    <message>
        <source>the left button alone is for drawing, add a key to it, such as ctrl+left</source>
        <translation>левая кнопка без клавиш нужна для рисования, добавьте клавишу, например ctrl+left</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>Жесты мыши в %1</translation>
    </message>
    <message>
        <source>Hold %1 and drag. Move on towards a command, or let go to do nothing.</source>
        <translation>Удерживайте %1 и тяните. Ведите дальше к команде или отпустите, чтобы ничего не делать.</translation>
    </message>
    <message>
        <source>the left button</source>
        <translation>левую кнопку</translation>
    </message>
    <message>
        <source>the middle button</source>
        <translation>среднюю кнопку</translation>
    </message>
    <message>
        <source>the right button</source>
        <translation>правую кнопку</translation>
    </message>
    <message>
        <source>the back button</source>
        <translation>кнопку «Назад»</translation>
    </message>
    <message>
        <source>the forward button</source>
        <translation>кнопку «Вперёд»</translation>
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
        <source>%1 and %2</source>
        <translation>%1 и %2</translation>
    </message>
    <message>
        <source>up</source>
        <translation>вверх</translation>
    </message>
    <message>
        <source>up left</source>
        <translation>вверх и влево</translation>
    </message>
    <message>
        <source>left</source>
        <translation>влево</translation>
    </message>
    <message>
        <source>down left</source>
        <translation>вниз и влево</translation>
    </message>
    <message>
        <source>down</source>
        <translation>вниз</translation>
    </message>
    <message>
        <source>down right</source>
        <translation>вниз и вправо</translation>
    </message>
    <message>
        <source>right</source>
        <translation>вправо</translation>
    </message>
    <message>
        <source>up right</source>
        <translation>вверх и вправо</translation>
    </message>
    <message>
        <source>They are switched off at the moment.</source>
        <translation>Сейчас они выключены.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Направление</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Команда</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Категория</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>ничего</translation>
    </message>
    <message>
        <source>%1: a sheet is a PDF, so its file ends in .pdf</source>
        <translation>%1: лист — это PDF, его файл оканчивается на .pdf</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 не установлен</translation>
    </message>
    <message>
        <source>the sheet could not be drawn: %1</source>
        <translation>не удалось нарисовать лист: %1</translation>
    </message>
    <message>
        <source>give a task, such as FreeCAD&apos;s SketcherWorkbench, a ring of its own, or the shared one again</source>
        <translation>дать задаче, например SketcherWorkbench во FreeCAD, своё кольцо или снова общее</translation>
    </message>
    <message>
        <source>start it without gestures if it cannot have them</source>
        <translation>запустить без жестов, если они невозможны</translation>
    </message>
    <message>
        <source>the profile of this program knows no tasks</source>
        <translation>в профиле этой программы нет задач</translation>
    </message>
    <message>
        <source>there is no task &quot;%1&quot;; known ones are %2</source>
        <translation>задачи «%1» нет; известны %2</translation>
    </message>
    <message>
        <source>bindings</source>
        <translation>назначения</translation>
    </message>
    <message>
        <source>, by %1</source>
        <translation>, по файлу %1</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 по файлу %2</translation>
    </message>
    <message>
        <source>%1, as suits the drawings</source>
        <translation>%1, в соответствии с чертежами</translation>
    </message>
    <message>
        <source>%1; ctrl+right if OpenGL paints the drawing</source>
        <translation>%1; ctrl+right, если чертёж рисует OpenGL</translation>
    </message>
    <message>
        <source>%1 has no ring of its own, see mouse-gestures --ring</source>
        <translation>у %1 нет своего кольца, см. mouse-gestures --ring</translation>
    </message>
    <message>
        <source>ring of %1</source>
        <translation>кольцо %1</translation>
    </message>
    <message>
        <source>a ring is &quot;own&quot; or &quot;shared&quot;, not &quot;%1&quot;</source>
        <translation>кольцо бывает «own» или «shared», а не «%1»</translation>
    </message>
    <message>
        <source>%1 in no file</source>
        <translation>%1 ни в одном файле</translation>
    </message>
    <message>
        <source>switch gestures on again, after a crash or when they are switched off in the settings</source>
        <translation>снова включить жесты: после сбоя или если они выключены в настройках</translation>
    </message>
    <message>
        <source>off since %1 crashed in their code; to switch them on: mouse-gestures --switch-on %1</source>
        <translation>выключены, так как в их коде произошёл сбой %1; чтобы включить: mouse-gestures --switch-on %1</translation>
    </message>
    <message>
        <source>put a command into a direction. COMMAND is its identifier or its caption, or &quot;none&quot;. DIRECTION is up, left, down or right; with eight gestures also up-left, down-left, down-right or up-right</source>
        <translation>назначить команду направлению. COMMAND — её идентификатор, название или «none». DIRECTION — up, left, down или right; при восьми жестах также up-left, down-left, down-right или up-right</translation>
    </message>
    <message>
        <source>With --ring TASK at its end, --bind, --export, --import, --print or --reset is about the ring of that task alone.</source>
        <translation>С --ring TASK в конце --bind, --export, --import, --print или --reset относится только к кольцу этой задачи.</translation>
    </message>
    <message>
        <source>names no task</source>
        <translation>не называет задачу</translation>
    </message>
    <message>
        <source>the profile %1 is not used: its name must be %2</source>
        <translation>профиль %1 не используется: его имя должно быть %2</translation>
    </message>
</context>
</TS>
