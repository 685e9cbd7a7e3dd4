<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>settings::Advice</name>
    <message>
        <source>%1 is no longer installed.</source>
        <translation>%1 已不再安装。</translation>
    </message>
    <message>
        <source>Its commands and directions are kept. Install it again to use them.</source>
        <translation>它的命令和方向仍然保留。重新安装即可使用。</translation>
    </message>
    <message>
        <source>%1 is not made with Qt Widgets, so gestures cannot work in it.</source>
        <translation>%1 不是用 Qt Widgets 制作的，因此无法使用手势。</translation>
    </message>
    <message>
        <source>The part of Mouse Gestures that %1 needs is not installed.</source>
        <translation>%1 所需的鼠标手势部分尚未安装。</translation>
    </message>
    <message>
        <source>Install the package gesturewidget-qt6.</source>
        <translation>请安装软件包 gesturewidget-qt6。</translation>
    </message>
    <message>
        <source>Install the package gesturewidget.</source>
        <translation>请安装软件包 gesturewidget。</translation>
    </message>
    <message>
        <source>This desktop runs without X11, so the ring may open away from the pointer.</source>
        <translation>此桌面没有 X11，圆环可能不在指针处打开。</translation>
    </message>
    <message>
        <source>Log in with X11, or install XWayland.</source>
        <translation>请使用 X11 登录，或安装 XWayland。</translation>
    </message>
    <message>
        <source>The profile of %1 cannot be used: %2</source>
        <translation>无法使用 %1 的配置：%2</translation>
    </message>
    <message>
        <source>Mend or remove that file.</source>
        <translation>请修正或删除该文件。</translation>
    </message>
    <message>
        <source>Changes cannot be kept: %1</source>
        <translation>无法保存更改：%1</translation>
    </message>
    <message>
        <source>Make that file and its folder yours, and writable.</source>
        <translation>请使该文件及其文件夹归您所有并可写。</translation>
    </message>
    <message>
        <source>Gestures are switched off in the settings of %1.</source>
        <translation>%1 的设置中已关闭手势。</translation>
    </message>
    <message>
        <source>%1 crashed in the code of Mouse Gestures, so gestures stay off in it.</source>
        <translation>%1 在 Mouse Gestures 的代码中崩溃，因此其中的手势保持关闭。</translation>
    </message>
    <message>
        <source>You can switch them on and try again.</source>
        <translation>您可以启用手势再试一次。</translation>
    </message>
</context>
<context>
    <name>settings::BindingsEditor</name>
    <message>
        <source>The number of directions was changed elsewhere meanwhile.</source>
        <translation>方向的数量已在别处更改。</translation>
    </message>
    <message>
        <source>Empty %1</source>
        <translation>清空：%1</translation>
    </message>
    <message>
        <source>Put &quot;%1&quot; %2</source>
        <translation>“%1”：%2</translation>
    </message>
    <message>
        <source>Exchange %1 and %2</source>
        <translation>交换%1和%2</translation>
    </message>
    <message>
        <source>Four Directions</source>
        <translation>四个方向</translation>
    </message>
    <message>
        <source>Eight Directions</source>
        <translation>八个方向</translation>
    </message>
    <message>
        <source>Switch Gestures On</source>
        <translation>打开手势</translation>
    </message>
    <message>
        <source>Switch Gestures Off</source>
        <translation>关闭手势</translation>
    </message>
    <message>
        <source>The left button alone is for drawing. Hold Ctrl, Shift, Alt or Meta with it.</source>
        <translation>单独的左键用于绘图。请同时按住 Ctrl、Shift、Alt 或 Meta。</translation>
    </message>
    <message>
        <source>Change What Starts a Gesture</source>
        <translation>更改手势的触发方式</translation>
    </message>
    <message>
        <source>Reset to First Commands</source>
        <translation>恢复初始命令</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Give &quot;%1&quot; Its Own Ring</source>
        <translation>为“%1”设置专用圆环</translation>
    </message>
    <message>
        <source>Let &quot;%1&quot; Use the Shared Ring</source>
        <translation>让“%1”使用共用圆环</translation>
    </message>
</context>
<context>
    <name>settings::CommandModel</name>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>First commands</source>
        <translation>初始命令</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>settings::CommandPanel</name>
    <message>
        <source>No command has this in its name.</source>
        <translation>没有名称中包含此内容的命令。</translation>
    </message>
    <message>
        <source>Search commands</source>
        <translation>搜索命令</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Ctrl and an arrow key puts the chosen command into that direction; Ctrl with Home, Page Up, End or Page Down into the one between.</source>
        <translation>Ctrl 加方向键把所选命令放到该方向；Ctrl 加 Home、Page Up、End 或 Page Down 放到中间方向。</translation>
    </message>
    <message>
        <source>&amp;Put Into</source>
        <translation>放到(&amp;P)</translation>
    </message>
    <message>
        <source>%1 (now %2)</source>
        <comment>a direction and its command</comment>
        <translation>%1（现在是 %2）</translation>
    </message>
    <message>
        <source>Take Off the Ring</source>
        <translation>从圆环移除</translation>
    </message>
</context>
<context>
    <name>settings::Exchange</name>
    <message>
        <source>Gestures (*.json)</source>
        <translation>手势 (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>已导出到 %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Imported from %1</source>
        <translation>已从 %1 导入</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>%1 中的鼠标手势</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>已打印</translation>
    </message>
    <message>
        <source>The printer did not take the sheet.</source>
        <translation>打印机未接受该页。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Bring the first commands of %1 back?</source>
        <translation>恢复 %1 的初始命令吗？</translation>
    </message>
    <message>
        <source>All directions get the commands that they had before anybody chose any. What starts a gesture stays. Undo takes this back.</source>
        <translation>所有方向恢复为最初的命令。手势的触发方式不变。撤销可还原。</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>重置(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>settings::ImportPreview</name>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>更改内容</translation>
    </message>
    <message>
        <source>What</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>现在</translation>
    </message>
    <message>
        <source>After</source>
        <translation>之后</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>导入(&amp;I)</translation>
    </message>
    <message>
        <source>%1 has what %2 has already. Nothing would change.</source>
        <translation>%1 的内容与 %2 已有的相同，不会有任何更改。</translation>
    </message>
    <message>
        <source>%1 would change the following in %2. The settings as they are now stay beside the new ones.</source>
        <translation>%1 将在 %2 中更改以下内容。现有设置会保留在新设置旁边。</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1（默认）</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Gestures</source>
        <translation>手势</translation>
    </message>
    <message>
        <source>Directions in use</source>
        <translation>使用的方向数</translation>
    </message>
    <message>
        <source>A gesture starts with</source>
        <translation>手势触发方式</translation>
    </message>
    <message>
        <source>%1 (of %2 directions)</source>
        <translation>%1（共 %2 个方向）</translation>
    </message>
    <message>
        <source>%1: now %2, after %3</source>
        <translation>%1：现在 %2，之后 %3</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Ring of %1</source>
        <translation>%1 的圆环</translation>
    </message>
    <message>
        <source>its own</source>
        <translation>专用</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>共享</translation>
    </message>
    <message>
        <source>the file&apos;s</source>
        <translation>文件中的</translation>
    </message>
</context>
<context>
    <name>settings::MessageBar</name>
    <message>
        <source>Close message</source>
        <translation>关闭消息</translation>
    </message>
</context>
<context>
    <name>settings::ProgramModel</name>
    <message>
        <source>Starts with gestures</source>
        <translation>带手势启动</translation>
    </message>
    <message>
        <source>Starts without gestures</source>
        <translation>不带手势启动</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPage</name>
    <message>
        <source>Switch Gestures &amp;On</source>
        <translation>打开手势(&amp;O)</translation>
    </message>
    <message>
        <source>Start with &amp;gestures</source>
        <translation>带手势启动(&amp;G)</translation>
    </message>
    <message>
        <source>Start with gestures</source>
        <translation>带手势启动</translation>
    </message>
    <message>
        <source>&amp;4 directions</source>
        <translation>&amp;4 个方向</translation>
    </message>
    <message>
        <source>&amp;8 directions</source>
        <translation>&amp;8 个方向</translation>
    </message>
    <message>
        <source>Drag a command from the list into a direction. Drag it on to another direction to exchange the two, or off the ring to take it away.</source>
        <translation>把命令从列表拖到一个方向。拖到另一个方向可交换两者，拖出圆环可移除。</translation>
    </message>
    <message>
        <source>Gestures work. %1 starts with them from the desktop&apos;s menus.</source>
        <translation>手势可用。从桌面菜单启动 %1 时会带手势。</translation>
    </message>
    <message>
        <source>Gestures would work. Switch them on here, then start %1 from the desktop&apos;s menus.</source>
        <translation>手势可以使用。请在此打开，然后从桌面菜单启动 %1。</translation>
    </message>
    <message>
        <source>These are the commands that nearly every program has. All others of %1 appear here when it has run with gestures once.</source>
        <translation>这些是几乎每个程序都有的命令。%1 带手势运行一次后，其他命令会显示在这里。</translation>
    </message>
    <message>
        <source>%1: hold, drag, and move on towards a command</source>
        <translation>%1：按住并拖动，继续移向命令</translation>
    </message>
    <message>
        <source>Ring of a task</source>
        <translation>任务的圆环</translation>
    </message>
    <message>
        <source>&amp;Ring:</source>
        <translation>圆环(&amp;R)：</translation>
    </message>
    <message>
        <source>For all tasks</source>
        <translation>所有任务</translation>
    </message>
    <message>
        <source>&amp;Own Rings</source>
        <translation>专用圆环(&amp;O)</translation>
    </message>
    <message>
        <source>Choose the tasks that have rings of their own</source>
        <translation>选择拥有专用圆环的任务</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPanel</name>
    <message>
        <source>Search programs</source>
        <translation>搜索程序</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Space switches a program&apos;s gestures on or off.</source>
        <translation>空格键打开或关闭程序的手势。</translation>
    </message>
    <message>
        <source>Looking for programs</source>
        <translation>正在查找程序</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>正在查找程序...</translation>
    </message>
    <message>
        <source>The desktop&apos;s menus show no program in which gestures can work. Gestures need a program made with Qt Widgets.</source>
        <translation>桌面菜单中没有可使用手势的程序。手势需要用 Qt Widgets 制作的程序。</translation>
    </message>
    <message>
        <source>No program has this in its name.</source>
        <translation>没有名称中包含此内容的程序。</translation>
    </message>
</context>
<context>
    <name>settings::RingView</name>
    <message>
        <source>Ring of directions</source>
        <translation>方向圆环</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1：无</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Picked up. Space at another direction exchanges the two.</source>
        <translation>已拿起。在另一个方向按空格键可交换两者。</translation>
    </message>
    <message>
        <source>Enter puts the chosen command here, Delete empties it, Space picks it up.</source>
        <translation>Enter 把所选命令放到这里，Delete 清空，空格键拿起。</translation>
    </message>
</context>
<context>
    <name>settings::SettingsWindow</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>鼠标手势</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>正在查找程序...</translation>
    </message>
    <message>
        <source>Main toolbar</source>
        <translation>主工具栏</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Start the Program</source>
        <translation>启动程序(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>导入(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>导出(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>打印(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>&amp;Find a Command</source>
        <translation>查找命令(&amp;F)</translation>
    </message>
    <message>
        <source>Reset to &amp;First Commands...</source>
        <translation>恢复初始命令(&amp;F)...</translation>
    </message>
    <message>
        <source>Reset...</source>
        <translation>重置...</translation>
    </message>
    <message>
        <source>No program</source>
        <translation>没有程序</translation>
    </message>
    <message>
        <source>%1 could not be started.</source>
        <translation>无法启动 %1。</translation>
    </message>
</context>
<context>
    <name>settings::Trigger</name>
    <message>
        <source>Left button</source>
        <translation>左键</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>中键</translation>
    </message>
    <message>
        <source>Back button</source>
        <translation>后退键</translation>
    </message>
    <message>
        <source>Forward button</source>
        <translation>前进键</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>右键</translation>
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
        <translation>录制手势的触发方式</translation>
    </message>
    <message>
        <source>Press a mouse button here, with the keys to hold. With the keyboard, choose from the list.</source>
        <translation>在此按下鼠标键及要按住的键。用键盘时请从列表中选择。</translation>
    </message>
    <message>
        <source>Press a mouse button here, with Ctrl, Shift, Alt or Meta held if you like</source>
        <translation>在此按下鼠标键，可同时按住 Ctrl、Shift、Alt 或 Meta</translation>
    </message>
    <message>
        <source>or press it here</source>
        <translation>或在此按下</translation>
    </message>
</context>
<context>
    <name>settings::TriggerPanel</name>
    <message>
        <source>A gesture &amp;starts with:</source>
        <translation>手势触发方式(&amp;S)：</translation>
    </message>
    <message>
        <source>What starts a gesture</source>
        <translation>手势的触发方式</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1（默认）</translation>
    </message>
    <message>
        <source>%1 (%2 uses it)</source>
        <translation>%1（%2 在用）</translation>
    </message>
    <message>
        <source>%1 uses this drag itself. While it starts a gesture, %1 no longer gets it.</source>
        <translation>%1 自身使用此拖动。用它开始手势时，%1 将不再收到它。</translation>
    </message>
    <message>
        <source>%1 is running. It takes this over at its next start.</source>
        <translation>%1 正在运行。更改将在其下次启动时生效。</translation>
    </message>
</context>
</TS>
