<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>launcher</name>
    <message>
        <source>show which command lies in which direction</source>
        <translation>显示各方向上的命令</translation>
    </message>
    <message>
        <source>show the commands that the program has shown so far</source>
        <translation>列出程序至今显示过的命令</translation>
    </message>
    <message>
        <source>choose what starts a gesture: right, middle, ctrl+right, ...; &quot;default&quot; is the usual trigger</source>
        <translation>选择触发方式：right、middle、ctrl+right 等；“default”为默认方式</translation>
    </message>
    <message>
        <source>bring the first bindings back; the trigger stays</source>
        <translation>恢复初始绑定；触发方式不变</translation>
    </message>
    <message>
        <source>write all bindings as JSON</source>
        <translation>以 JSON 写出所有绑定</translation>
    </message>
    <message>
        <source>take over such a file, all of it or nothing</source>
        <translation>导入此类文件，要么全部要么不导入</translation>
    </message>
    <message>
        <source>draw the ring with its commands, to pin on the wall</source>
        <translation>绘制带命令的圆环，可贴在墙上</translation>
    </message>
    <message>
        <source>say whether gestures can work in the program</source>
        <translation>说明手势能否在该程序中工作</translation>
    </message>
    <message>
        <source>start the program, say what in it is taken for what and why, print that as a profile, end the program</source>
        <translation>启动程序，说明其中各部分被识别为什么及原因，输出为配置，然后结束程序</translation>
    </message>
    <message>
        <source>start it with gestures from the desktop&apos;s menus too</source>
        <translation>从桌面菜单启动时也带手势</translation>
    </message>
    <message>
        <source>start it from the desktop&apos;s menus as before</source>
        <translation>从桌面菜单照旧启动</translation>
    </message>
    <message>
        <source>usage: mouse-gestures %1 %2</source>
        <translation>用法：mouse-gestures %1 %2</translation>
    </message>
    <message>
        <source>unknown option %1, see mouse-gestures --help</source>
        <translation>未知选项 %1，参见 mouse-gestures --help</translation>
    </message>
    <message>
        <source>no program given, see mouse-gestures --help</source>
        <translation>未指定程序，参见 mouse-gestures --help</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>用法：</translation>
    </message>
    <message>
        <source>Starts a drafting program with mouse gestures: hold the right button in the drawing, drag, and move on towards the command you want. &quot;Mouse Gestures...&quot; in the program&apos;s menus shows which command lies in which direction.</source>
        <translation>以鼠标手势启动绘图程序：在图中按住右键拖动，再移向所需的命令。程序菜单中的“鼠标手势...”显示各方向上的命令。</translation>
    </message>
    <message>
        <source>PROGRAM is any program made with Qt Widgets, 5 or 6. It is not changed. Without a program, a window opens in which a person can do all of this with the mouse.</source>
        <translation>PROGRAM 是任何用 Qt Widgets 5 或 6 制作的程序，程序本身不会被更改。不指定程序时会打开一个窗口，可用鼠标完成这些操作。</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>显示此说明</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>显示版本</translation>
    </message>
    <message>
        <source>the next word is the program, even if it starts with &quot;-&quot;</source>
        <translation>下一个词是程序，即使以“-”开头</translation>
    </message>
    <message>
        <source>FILE may be &quot;-&quot; for standard output or standard input.</source>
        <translation>FILE 可为“-”，表示标准输出或标准输入。</translation>
    </message>
    <message>
        <source>Exit status of a started program: its own. 127: there is no such program. 126: it cannot be run with gestures. 125: mouse-gestures is not set up or not used correctly. An option exits with 1 when it could not be done; nothing is changed then.</source>
        <translation>已启动程序的退出状态即其自身的状态。127：没有这个程序。126：无法带手势运行。125：mouse-gestures 安装或使用不当。选项未能完成时以 1 退出，且不做任何更改。</translation>
    </message>
    <message>
        <source>standard input cannot be read</source>
        <translation>无法读取标准输入</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>gestures cannot work well in %1, see the lines with &quot;!&quot;</source>
        <translation>手势在 %1 中无法正常工作，请看带“!”的行</translation>
    </message>
    <message>
        <source>%1: there is no such program</source>
        <translation>%1：没有这个程序</translation>
    </message>
    <message>
        <source>standard output cannot be written</source>
        <translation>无法写入标准输出</translation>
    </message>
    <message>
        <source>warning: there is no X11 display; under Wayland the ring may open away from the pointer</source>
        <translation>警告：没有 X11 显示；在 Wayland 下圆环可能在远离指针处打开</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>To change any of it, edit this profile and keep it as %1</source>
        <translation>要更改，请编辑此配置并保存为 %1</translation>
    </message>
    <message>
        <source>%1 is your own and stays as it is</source>
        <translation>%1 是您自己的文件，保持不变</translation>
    </message>
    <message>
        <source>%1: the desktop has no entry that starts it</source>
        <translation>%1：桌面菜单中没有启动它的条目</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>无法读取 %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>starts with gestures: %1</source>
        <translation>将带手势启动：%1</translation>
    </message>
    <message>
        <source>%1 cannot be removed</source>
        <translation>无法删除 %1</translation>
    </message>
    <message>
        <source>starts as before: %1 is removed</source>
        <translation>将照旧启动：已删除 %1</translation>
    </message>
    <message>
        <source>%1: nothing was there to remove</source>
        <translation>%1：没有可删除的内容</translation>
    </message>
    <message>
        <source>program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>plug-in</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>compositor</source>
        <translation>合成器</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>views</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>gestures</source>
        <translation>手势</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>触发</translation>
    </message>
    <message>
        <source>%1, not found</source>
        <translation>%1，未找到</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>not known before it runs: a script</source>
        <translation>运行前未知：这是脚本</translation>
    </message>
    <message>
        <source>none; gestures need a program made with Qt Widgets</source>
        <translation>无；手势需要用 Qt Widgets 制作的程序</translation>
    </message>
    <message>
        <source>not installed</source>
        <translation>未安装</translation>
    </message>
    <message>
        <source>not installed for Qt %1</source>
        <translation>未安装用于 Qt %1 的版本</translation>
    </message>
    <message>
        <source>Wayland without X11; the ring may open away from the pointer</source>
        <translation>没有 X11 的 Wayland；圆环可能在远离指针处打开</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Wayland; the program will use X11, %1</source>
        <translation>Wayland；程序将使用 X11，%1</translation>
    </message>
    <message>
        <source>X11, %1</source>
        <translation>X11，%1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>正在运行</translation>
    </message>
    <message>
        <source>none; the ring shows what was under it when it opened</source>
        <translation>无；圆环显示打开时其下方的内容</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>none of its own</source>
        <translation>没有专用配置</translation>
    </message>
    <message>
        <source>looked for in the running program, see --explain</source>
        <translation>在运行的程序中查找，参见 --explain</translation>
    </message>
    <message>
        <source>%1, by the profile</source>
        <translation>%1，依据配置</translation>
    </message>
    <message>
        <source>%1, cannot be written</source>
        <translation>%1，无法写入</translation>
    </message>
    <message>
        <source>%1, not there yet</source>
        <translation>%1，尚不存在</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>已在设置中关闭</translation>
    </message>
    <message>
        <source>on, %1 of them</source>
        <translation>已启用，共 %1 个</translation>
    </message>
    <message>
        <source>it %1 before it had shown a main window with menus</source>
        <translation>在显示带菜单的主窗口之前，它%1</translation>
    </message>
    <message>
        <source>it has not loaded the plug-in in %1 seconds</source>
        <translation>它在 %1 秒内没有加载插件</translation>
    </message>
    <message>
        <source>it has shown no main window with menus in %1 seconds; a dialog may be waiting</source>
        <translation>它在 %1 秒内没有显示带菜单的主窗口；可能有对话框在等待</translation>
    </message>
    <message>
        <source>was ended by signal %1</source>
        <translation>被信号 %1 终止</translation>
    </message>
    <message>
        <source>ended with status %1</source>
        <translation>以状态 %1 结束</translation>
    </message>
    <message>
        <source>%1: the file may not be executed</source>
        <translation>%1：此文件不可执行</translation>
    </message>
    <message>
        <source>%1: this is a folder, not a program</source>
        <translation>%1：这是文件夹，不是程序</translation>
    </message>
    <message>
        <source>%1: gestures need a program made with Qt Widgets, which this one is not</source>
        <translation>%1：手势需要用 Qt Widgets 制作的程序，而它不是</translation>
    </message>
    <message>
        <source>the plug-in libmousegestures is not installed</source>
        <translation>未安装插件 libmousegestures</translation>
    </message>
    <message>
        <source>%1 uses Qt %2, for which the plug-in libmousegestures-qt%2.so is not installed</source>
        <translation>%1 使用 Qt %2，但未安装插件 libmousegestures-qt%2.so</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice</source>
        <translation>“%1”出现了两次</translation>
    </message>
    <message>
        <source>is not a key of such a file</source>
        <translation>不是这种文件的键</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>is not an object</source>
        <translation>不是对象</translation>
    </message>
    <message>
        <source>is not a string</source>
        <translation>不是字符串</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>含有控制字符</translation>
    </message>
    <message>
        <source>has &quot;%1&quot;, which another direction has</source>
        <translation>的“%1”已在另一个方向上</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>line %1: this is nested too deeply for bindings</source>
        <translation>第 %1 行：嵌套过深</translation>
    </message>
    <message>
        <source>line 1: it is not an object</source>
        <translation>第 1 行：不是对象</translation>
    </message>
    <message>
        <source>is not %1</source>
        <translation>不是 %1</translation>
    </message>
    <message>
        <source>is not &quot;%1&quot;</source>
        <translation>不是“%1”</translation>
    </message>
    <message>
        <source>is neither true nor false</source>
        <translation>既不是 true 也不是 false</translation>
    </message>
    <message>
        <source>names no button</source>
        <translation>没有指明按键</translation>
    </message>
    <message>
        <source>is neither 4 nor 8</source>
        <translation>既不是 4 也不是 8</translation>
    </message>
    <message>
        <source>no command of %1 is known yet; start it once with &quot;mouse-gestures %1&quot;</source>
        <translation>尚不知道 %1 的任何命令；请用“mouse-gestures %1”启动一次</translation>
    </message>
    <message>
        <source>%1 has never shown a command &quot;%2&quot;; mouse-gestures --list-commands %1 says which it has</source>
        <translation>%1 从未显示过命令“%2”；mouse-gestures --list-commands %1 会列出它的命令</translation>
    </message>
    <message>
        <source>several commands are called &quot;%1&quot;: %2</source>
        <translation>有多个命令名为“%1”：%2</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>%1 gestures (in use)</source>
        <translation>%1 个手势（使用中）</translation>
    </message>
    <message>
        <source>%1 gestures</source>
        <translation>%1 个手势</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1：没有这个文件</translation>
    </message>
    <message>
        <source>%1: this is not a file</source>
        <translation>%1：这不是文件</translation>
    </message>
    <message>
        <source>%1: this is too long for bindings</source>
        <translation>%1：作为绑定文件过长</translation>
    </message>
    <message>
        <source>this was changed elsewhere meanwhile, so it stays</source>
        <translation>此项已在别处更改，因此保持不变</translation>
    </message>
    <message>
        <source>gestures in %1: on</source>
        <translation>%1 中的手势：开</translation>
    </message>
    <message>
        <source>gestures in %1: off</source>
        <translation>%1 中的手势：关</translation>
    </message>
    <message>
        <source>started with: %1 (default)</source>
        <translation>触发：%1（默认）</translation>
    </message>
    <message>
        <source>started with: %1</source>
        <translation>触发：%1</translation>
    </message>
    <message>
        <source>a command&apos;s identifier has no control characters</source>
        <translation>命令标识符不能含控制字符</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the %2 directions: %3</source>
        <translation>“%1”不是 %2 个方向之一：%3</translation>
    </message>
    <message>
        <source>%1 has not run with gestures yet; if it has no command &quot;%2&quot;, the direction becomes empty</source>
        <translation>%1 尚未带手势运行过；如果它没有命令“%2”，该方向将变为空</translation>
    </message>
    <message>
        <source>gestures are still started with: %1</source>
        <translation>触发方式不变：%1</translation>
    </message>
    <message>
        <source>%1, so nothing is imported</source>
        <translation>%1，因此未导入任何内容</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger, such as right, middle or ctrl+right; &quot;default&quot; is the program&apos;s usual one</source>
        <translation>“%1”不是触发方式，例如 right、middle 或 ctrl+right；“default”是程序的默认触发</translation>
    </message>
    <message>
        <source>the left button alone is for drawing, add a key to it, such as ctrl+left</source>
        <translation>单独的左键用于绘图，请加一个键，例如 ctrl+left</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>%1 中的鼠标手势</translation>
    </message>
    <message>
        <source>Hold %1 and drag. Move on towards a command, or let go to do nothing.</source>
        <translation>按住%1并拖动。继续移向某个命令，或松开以取消。</translation>
    </message>
    <message>
        <source>the left button</source>
        <translation>左键</translation>
    </message>
    <message>
        <source>the middle button</source>
        <translation>中键</translation>
    </message>
    <message>
        <source>the right button</source>
        <translation>右键</translation>
    </message>
    <message>
        <source>the back button</source>
        <translation>后退键</translation>
    </message>
    <message>
        <source>the forward button</source>
        <translation>前进键</translation>
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
        <translation>%1 和%2</translation>
    </message>
    <message>
        <source>up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>up left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>down left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>down</source>
        <translation>下</translation>
    </message>
    <message>
        <source>down right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>up right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>They are switched off at the moment.</source>
        <translation>目前已关闭。</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1: a sheet is a PDF, so its file ends in .pdf</source>
        <translation>%1：图页是 PDF，文件名应以 .pdf 结尾</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>未安装 %1</translation>
    </message>
    <message>
        <source>the sheet could not be drawn: %1</source>
        <translation>无法绘制图页：%1</translation>
    </message>
    <message>
        <source>give a task, such as FreeCAD&apos;s SketcherWorkbench, a ring of its own, or the shared one again</source>
        <translation>为任务（如 FreeCAD 的 SketcherWorkbench）设置专用圆环，或改回共用圆环</translation>
    </message>
    <message>
        <source>start it without gestures if it cannot have them</source>
        <translation>若无法使用手势则不带手势启动</translation>
    </message>
    <message>
        <source>the profile of this program knows no tasks</source>
        <translation>此程序的配置没有任务</translation>
    </message>
    <message>
        <source>there is no task &quot;%1&quot;; known ones are %2</source>
        <translation>没有任务“%1”；已知的有 %2</translation>
    </message>
    <message>
        <source>bindings</source>
        <translation>绑定</translation>
    </message>
    <message>
        <source>, by %1</source>
        <translation>，依据 %1</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 个依据 %2</translation>
    </message>
    <message>
        <source>%1, as suits the drawings</source>
        <translation>%1，依据图形</translation>
    </message>
    <message>
        <source>%1; ctrl+right if OpenGL paints the drawing</source>
        <translation>%1；若由 OpenGL 绘制则为 ctrl+right</translation>
    </message>
    <message>
        <source>%1 has no ring of its own, see mouse-gestures --ring</source>
        <translation>%1 没有专用圆环，参见 mouse-gestures --ring</translation>
    </message>
    <message>
        <source>ring of %1</source>
        <translation>%1 的圆环</translation>
    </message>
    <message>
        <source>a ring is &quot;own&quot; or &quot;shared&quot;, not &quot;%1&quot;</source>
        <translation>圆环为“own”或“shared”，而不是“%1”</translation>
    </message>
    <message>
        <source>%1 in no file</source>
        <translation>%1 个不在任何文件中</translation>
    </message>
    <message>
        <source>switch gestures on again, after a crash or when they are switched off in the settings</source>
        <translation>重新启用手势：在崩溃之后，或手势在设置中已关闭时</translation>
    </message>
    <message>
        <source>off since %1 crashed in their code; to switch them on: mouse-gestures --switch-on %1</source>
        <translation>%1 在手势代码中崩溃，此后已关闭；要启用：mouse-gestures --switch-on %1</translation>
    </message>
    <message>
        <source>put a command into a direction. COMMAND is its identifier or its caption, or &quot;none&quot;. DIRECTION is up, left, down or right; with eight gestures also up-left, down-left, down-right or up-right</source>
        <translation>将命令放到某个方向。COMMAND 是其标识符、名称或“none”。DIRECTION 为 up、left、down 或 right；八个手势时还有 up-left、down-left、down-right 或 up-right</translation>
    </message>
    <message>
        <source>With --ring TASK at its end, --bind, --export, --import, --print or --reset is about the ring of that task alone.</source>
        <translation>末尾加上 --ring TASK 时，--bind、--export、--import、--print 或 --reset 只针对该任务的圆环。</translation>
    </message>
    <message>
        <source>names no task</source>
        <translation>没有指明任务</translation>
    </message>
    <message>
        <source>the profile %1 is not used: its name must be %2</source>
        <translation>未使用配置 %1：其名称必须为 %2</translation>
    </message>
</context>
</TS>
