<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>settings::Advice</name>
    <message>
        <source>%1 is no longer installed.</source>
        <translation>%1 больше не установлен.</translation>
    </message>
    <message>
        <source>Its commands and directions are kept. Install it again to use them.</source>
        <translation>Его команды и направления сохранены. Установите его снова, чтобы ими пользоваться.</translation>
    </message>
    <message>
        <source>%1 is not made with Qt Widgets, so gestures cannot work in it.</source>
        <translation>%1 не использует Qt Widgets, поэтому жесты в нём работать не могут.</translation>
    </message>
    <message>
        <source>The part of Mouse Gestures that %1 needs is not installed.</source>
        <translation>Часть жестов мыши, нужная для %1, не установлена.</translation>
    </message>
    <message>
        <source>Install the package gesturewidget-qt6.</source>
        <translation>Установите пакет gesturewidget-qt6.</translation>
    </message>
    <message>
        <source>Install the package gesturewidget.</source>
        <translation>Установите пакет gesturewidget.</translation>
    </message>
    <message>
        <source>This desktop runs without X11, so the ring may open away from the pointer.</source>
        <translation>Этот рабочий стол работает без X11, и кольцо может открыться в стороне от указателя.</translation>
    </message>
    <message>
        <source>Log in with X11, or install XWayland.</source>
        <translation>Войдите в сеанс X11 или установите XWayland.</translation>
    </message>
    <message>
        <source>The profile of %1 cannot be used: %2</source>
        <translation>Профиль %1 нельзя использовать: %2</translation>
    </message>
    <message>
        <source>Mend or remove that file.</source>
        <translation>Исправьте или удалите этот файл.</translation>
    </message>
    <message>
        <source>Changes cannot be kept: %1</source>
        <translation>Изменения нельзя сохранить: %1</translation>
    </message>
    <message>
        <source>Make that file and its folder yours, and writable.</source>
        <translation>Сделайте файл и его папку своими и доступными для записи.</translation>
    </message>
    <message>
        <source>Gestures are switched off in the settings of %1.</source>
        <translation>Жесты выключены в настройках %1.</translation>
    </message>
    <message>
        <source>%1 crashed in the code of Mouse Gestures, so gestures stay off in it.</source>
        <translation>В коде Mouse Gestures произошёл сбой %1, поэтому жесты в этой программе остаются выключенными.</translation>
    </message>
    <message>
        <source>You can switch them on and try again.</source>
        <translation>Их можно включить и попробовать снова.</translation>
    </message>
</context>
<context>
    <name>settings::BindingsEditor</name>
    <message>
        <source>The number of directions was changed elsewhere meanwhile.</source>
        <translation>Тем временем число направлений изменили в другом месте.</translation>
    </message>
    <message>
        <source>Empty %1</source>
        <translation>Очистить: %1</translation>
    </message>
    <message>
        <source>Put &quot;%1&quot; %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message>
        <source>Exchange %1 and %2</source>
        <translation>Поменять местами: %1 и %2</translation>
    </message>
    <message>
        <source>Four Directions</source>
        <translation>Четыре направления</translation>
    </message>
    <message>
        <source>Eight Directions</source>
        <translation>Восемь направлений</translation>
    </message>
    <message>
        <source>Switch Gestures On</source>
        <translation>Включить жесты</translation>
    </message>
    <message>
        <source>Switch Gestures Off</source>
        <translation>Выключить жесты</translation>
    </message>
    <message>
        <source>The left button alone is for drawing. Hold Ctrl, Shift, Alt or Meta with it.</source>
        <translation>Левая кнопка сама по себе служит для рисования. Удерживайте с ней Ctrl, Shift, Alt или Meta.</translation>
    </message>
    <message>
        <source>Change What Starts a Gesture</source>
        <translation>Изменить начало жеста</translation>
    </message>
    <message>
        <source>Reset to First Commands</source>
        <translation>Вернуть первые команды</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>Give &quot;%1&quot; Its Own Ring</source>
        <translation>Дать «%1» своё кольцо</translation>
    </message>
    <message>
        <source>Let &quot;%1&quot; Use the Shared Ring</source>
        <translation>Дать «%1» общее кольцо</translation>
    </message>
</context>
<context>
    <name>settings::CommandModel</name>
    <message>
        <source>Command</source>
        <translation>Команда</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Направление</translation>
    </message>
    <message>
        <source>First commands</source>
        <translation>Первые команды</translation>
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
        <translation>Нет команды с таким текстом в названии.</translation>
    </message>
    <message>
        <source>Search commands</source>
        <translation>Поиск команд</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Команды</translation>
    </message>
    <message>
        <source>Ctrl and an arrow key puts the chosen command into that direction; Ctrl with Home, Page Up, End or Page Down into the one between.</source>
        <translation>Ctrl со стрелкой помещает выбранную команду в это направление; Ctrl с Home, Page Up, End или Page Down — в промежуточное.</translation>
    </message>
    <message>
        <source>&amp;Put Into</source>
        <translation>&amp;Поместить в</translation>
    </message>
    <message>
        <source>%1 (now %2)</source>
        <comment>a direction and its command</comment>
        <translation>%1 (сейчас %2)</translation>
    </message>
    <message>
        <source>Take Off the Ring</source>
        <translation>Убрать с кольца</translation>
    </message>
</context>
<context>
    <name>settings::Exchange</name>
    <message>
        <source>Gestures (*.json)</source>
        <translation>Жесты (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Экспортировано в %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>Imported from %1</source>
        <translation>Импортировано из %1</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>Жесты мыши в %1</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Напечатано</translation>
    </message>
    <message>
        <source>The printer did not take the sheet.</source>
        <translation>Принтер не принял лист.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сброс</translation>
    </message>
    <message>
        <source>Bring the first commands of %1 back?</source>
        <translation>Вернуть первые команды %1?</translation>
    </message>
    <message>
        <source>All directions get the commands that they had before anybody chose any. What starts a gesture stays. Undo takes this back.</source>
        <translation>Все направления получат исходные команды. Начало жеста не изменится. «Отменить» вернёт всё назад.</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Сбросить</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Отмена</translation>
    </message>
</context>
<context>
    <name>settings::ImportPreview</name>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>Что изменится</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Что</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>After</source>
        <translation>После</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Импортировать</translation>
    </message>
    <message>
        <source>%1 has what %2 has already. Nothing would change.</source>
        <translation>%1 содержит то, что уже есть в %2. Ничего не изменится.</translation>
    </message>
    <message>
        <source>%1 would change the following in %2. The settings as they are now stay beside the new ones.</source>
        <translation>%1 изменит в %2 следующее. Нынешние настройки останутся рядом с новыми.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>включены</translation>
    </message>
    <message>
        <source>off</source>
        <translation>выключены</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (обычно)</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>ничего</translation>
    </message>
    <message>
        <source>Gestures</source>
        <translation>Жесты</translation>
    </message>
    <message>
        <source>Directions in use</source>
        <translation>Число направлений</translation>
    </message>
    <message>
        <source>A gesture starts with</source>
        <translation>Жест начинает</translation>
    </message>
    <message>
        <source>%1 (of %2 directions)</source>
        <translation>%1 (из %2 направлений)</translation>
    </message>
    <message>
        <source>%1: now %2, after %3</source>
        <translation>%1: сейчас %2, после %3</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Отмена</translation>
    </message>
    <message>
        <source>Ring of %1</source>
        <translation>Кольцо %1</translation>
    </message>
    <message>
        <source>its own</source>
        <translation>своё</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>общее</translation>
    </message>
    <message>
        <source>the file&apos;s</source>
        <translation>из файла</translation>
    </message>
</context>
<context>
    <name>settings::MessageBar</name>
    <message>
        <source>Close message</source>
        <translation>Закрыть сообщение</translation>
    </message>
</context>
<context>
    <name>settings::ProgramModel</name>
    <message>
        <source>Starts with gestures</source>
        <translation>Запускается с жестами</translation>
    </message>
    <message>
        <source>Starts without gestures</source>
        <translation>Запускается без жестов</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPage</name>
    <message>
        <source>Switch Gestures &amp;On</source>
        <translation>&amp;Включить жесты</translation>
    </message>
    <message>
        <source>Start with &amp;gestures</source>
        <translation>Запускать с &amp;жестами</translation>
    </message>
    <message>
        <source>Start with gestures</source>
        <translation>Запускать с жестами</translation>
    </message>
    <message>
        <source>&amp;4 directions</source>
        <translation>&amp;4 направления</translation>
    </message>
    <message>
        <source>&amp;8 directions</source>
        <translation>&amp;8 направлений</translation>
    </message>
    <message>
        <source>Drag a command from the list into a direction. Drag it on to another direction to exchange the two, or off the ring to take it away.</source>
        <translation>Перетащите команду из списка в направление. Перетащите её в другое, чтобы поменять их местами, или за кольцо, чтобы убрать.</translation>
    </message>
    <message>
        <source>Gestures work. %1 starts with them from the desktop&apos;s menus.</source>
        <translation>Жесты работают. %1 запускается с ними из меню рабочего стола.</translation>
    </message>
    <message>
        <source>Gestures would work. Switch them on here, then start %1 from the desktop&apos;s menus.</source>
        <translation>Жесты будут работать. Включите их здесь, затем запустите %1 из меню рабочего стола.</translation>
    </message>
    <message>
        <source>These are the commands that nearly every program has. All others of %1 appear here when it has run with gestures once.</source>
        <translation>Это команды, которые есть почти в любой программе. Остальные команды %1 появятся здесь после одного запуска с жестами.</translation>
    </message>
    <message>
        <source>%1: hold, drag, and move on towards a command</source>
        <translation>%1: удерживать, тянуть и дальше к команде</translation>
    </message>
    <message>
        <source>Ring of a task</source>
        <translation>Кольцо задачи</translation>
    </message>
    <message>
        <source>&amp;Ring:</source>
        <translation>&amp;Кольцо:</translation>
    </message>
    <message>
        <source>For all tasks</source>
        <translation>Для всех задач</translation>
    </message>
    <message>
        <source>&amp;Own Rings</source>
        <translation>С&amp;вои кольца</translation>
    </message>
    <message>
        <source>Choose the tasks that have rings of their own</source>
        <translation>Выбрать задачи, у которых есть свои кольца</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPanel</name>
    <message>
        <source>Search programs</source>
        <translation>Поиск программ</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Программы</translation>
    </message>
    <message>
        <source>Space switches a program&apos;s gestures on or off.</source>
        <translation>Пробел включает или выключает жесты программы.</translation>
    </message>
    <message>
        <source>Looking for programs</source>
        <translation>Поиск программ</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>Поиск программ...</translation>
    </message>
    <message>
        <source>The desktop&apos;s menus show no program in which gestures can work. Gestures need a program made with Qt Widgets.</source>
        <translation>В меню рабочего стола нет программы, в которой могут работать жесты. Нужна программа на Qt Widgets.</translation>
    </message>
    <message>
        <source>No program has this in its name.</source>
        <translation>Нет программы с таким текстом в названии.</translation>
    </message>
</context>
<context>
    <name>settings::RingView</name>
    <message>
        <source>Ring of directions</source>
        <translation>Кольцо направлений</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1: ничего</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Picked up. Space at another direction exchanges the two.</source>
        <translation>Взято. Пробел на другом направлении поменяет их местами.</translation>
    </message>
    <message>
        <source>Enter puts the chosen command here, Delete empties it, Space picks it up.</source>
        <translation>Enter помещает сюда выбранную команду, Delete очищает, пробел берёт её.</translation>
    </message>
</context>
<context>
    <name>settings::SettingsWindow</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>Жесты мыши</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>Поиск программ...</translation>
    </message>
    <message>
        <source>Main toolbar</source>
        <translation>Главная панель</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Start the Program</source>
        <translation>&amp;Запустить программу</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Импорт...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Экспорт...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Печать...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Выход</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>&amp;Find a Command</source>
        <translation>&amp;Найти команду</translation>
    </message>
    <message>
        <source>Reset to &amp;First Commands...</source>
        <translation>Вернуть &amp;первые команды...</translation>
    </message>
    <message>
        <source>Reset...</source>
        <translation>Сбросить...</translation>
    </message>
    <message>
        <source>No program</source>
        <translation>Нет программ</translation>
    </message>
    <message>
        <source>%1 could not be started.</source>
        <translation>Не удалось запустить %1.</translation>
    </message>
</context>
<context>
    <name>settings::Trigger</name>
    <message>
        <source>Left button</source>
        <translation>Левая кнопка</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>Средняя кнопка</translation>
    </message>
    <message>
        <source>Back button</source>
        <translation>Кнопка «Назад»</translation>
    </message>
    <message>
        <source>Forward button</source>
        <translation>Кнопка «Вперёд»</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Правая кнопка</translation>
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
</context>
<context>
    <name>settings::TriggerField</name>
    <message>
        <source>Record what starts a gesture</source>
        <translation>Записать начало жеста</translation>
    </message>
    <message>
        <source>Press a mouse button here, with the keys to hold. With the keyboard, choose from the list.</source>
        <translation>Нажмите здесь кнопку мыши с нужными клавишами. С клавиатуры выберите из списка.</translation>
    </message>
    <message>
        <source>Press a mouse button here, with Ctrl, Shift, Alt or Meta held if you like</source>
        <translation>Нажмите здесь кнопку мыши, при желании с Ctrl, Shift, Alt или Meta</translation>
    </message>
    <message>
        <source>or press it here</source>
        <translation>или нажмите здесь</translation>
    </message>
</context>
<context>
    <name>settings::TriggerPanel</name>
    <message>
        <source>A gesture &amp;starts with:</source>
        <translation>Жест &amp;начинает:</translation>
    </message>
    <message>
        <source>What starts a gesture</source>
        <translation>Что начинает жест</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (обычно)</translation>
    </message>
    <message>
        <source>%1 (%2 uses it)</source>
        <translation>%1 (занято: %2)</translation>
    </message>
    <message>
        <source>%1 uses this drag itself. While it starts a gesture, %1 no longer gets it.</source>
        <translation>%1 само использует это движение. Пока оно начинает жест, %1 его не получает.</translation>
    </message>
    <message>
        <source>%1 is running. It takes this over at its next start.</source>
        <translation>%1 сейчас работает. Изменение вступит в силу при следующем запуске.</translation>
    </message>
</context>
</TS>
