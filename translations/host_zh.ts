<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>host</name>
    <message>
        <source>The program has no command &quot;%1&quot;; its direction is empty.</source>
        <translation>程序没有命令“%1”，其方向为空。</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>没有命令“%1”。</translation>
    </message>
    <message>
        <source>%1: cannot be used at the moment.</source>
        <translation>%1：现在不能使用。</translation>
    </message>
    <message>
        <source>%1: not available at the moment.</source>
        <translation>%1：现在不可用。</translation>
    </message>
    <message>
        <source>The toolbar &quot;%1&quot; does not have it now.</source>
        <translation>工具栏“%1”中现在没有此命令。</translation>
    </message>
    <message>
        <source>It belongs to the toolbar &quot;%1&quot;, which is not there now.</source>
        <translation>它属于工具栏“%1”，而该工具栏现在不存在。</translation>
    </message>
    <message>
        <source>The menu &quot;%1&quot; does not have it now.</source>
        <translation>菜单“%1”中现在没有此命令。</translation>
    </message>
    <message>
        <source>It belongs to the menu &quot;%1&quot;, which is not there now.</source>
        <translation>它属于菜单“%1”，而该菜单现在不存在。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>直线</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>偏移</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>修剪</translation>
    </message>
    <message>
        <source>Zoom to Fit</source>
        <translation>缩放到合适大小</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The guide to mouse gestures cannot be opened.</source>
        <translation>无法打开鼠标手势指南。</translation>
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
        <translation>左键</translation>
    </message>
    <message>
        <source>middle button</source>
        <translation>中键</translation>
    </message>
    <message>
        <source>right button</source>
        <translation>右键</translation>
    </message>
    <message>
        <source>back button</source>
        <translation>后退键</translation>
    </message>
    <message>
        <source>forward button</source>
        <translation>前进键</translation>
    </message>
    <message>
        <source>Mouse gestures start with: %1. To change it: &quot;Mouse Gestures&quot; in the desktop&apos;s menu, or mouse-gestures --trigger %2</source>
        <translation>鼠标手势以 %1 开始。更改：桌面菜单中的“鼠标手势”，或 mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>这是所有任务共用的圆环。</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>这是 %1 的圆环。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>shortcut &quot;%1&quot;</source>
        <translation>快捷键“%1”</translation>
    </message>
    <message>
        <source>icon &quot;%1&quot;</source>
        <translation>图标“%1”</translation>
    </message>
    <message>
        <source>object name &quot;%1&quot;</source>
        <translation>对象名“%1”</translation>
    </message>
    <message>
        <source>caption &quot;%1&quot;</source>
        <translation>标题“%1”</translation>
    </message>
    <message>
        <source>it is a text editor</source>
        <translation>它是文本编辑器</translation>
    </message>
    <message>
        <source>it is an item view</source>
        <translation>它是列表或表格</translation>
    </message>
    <message>
        <source>it is a frame for others</source>
        <translation>它是其他部件的框架</translation>
    </message>
    <message>
        <source>it is a control</source>
        <translation>它是控件</translation>
    </message>
    <message>
        <source>it shows web pages</source>
        <translation>它显示网页</translation>
    </message>
    <message>
        <source>it is a start page by its name</source>
        <translation>从名称看是起始页</translation>
    </message>
    <message>
        <source>it is the viewport of %1</source>
        <translation>它是 %1 的可见部分</translation>
    </message>
    <message>
        <source>it is inside %1</source>
        <translation>它在 %1 里面</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>它不可见</translation>
    </message>
    <message>
        <source>it is too small</source>
        <translation>它太小</translation>
    </message>
    <message>
        <source>it is a plain %1, which paints nothing</source>
        <translation>它只是 %1，不绘制任何内容</translation>
    </message>
    <message>
        <source>it is filled by another, %1</source>
        <translation>它被另一个部件填满：%1</translation>
    </message>
    <message>
        <source>it is a text editor by the way it takes text</source>
        <translation>它像文本编辑器一样接收文字</translation>
    </message>
    <message>
        <source>it is a table by its header</source>
        <translation>从表头看是表格</translation>
    </message>
    <message>
        <source>it is a page of controls</source>
        <translation>它是控件页面</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area</source>
        <translation>它是滚动区域的内容，该区域占 %1 %</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area</source>
        <translation>它自行绘制，占区域的 %1 %</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>它是滚动区域的内容，该区域占 %1 %，其中没有别的部件能显示图形</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>它自行绘制，占区域的 %1 %，其中没有别的部件能显示图形</translation>
    </message>
    <message>
        <source>it fills %1 % of the area only</source>
        <translation>它只占区域的 %1 %</translation>
    </message>
    <message>
        <source>it is not in the middle of a main window</source>
        <translation>它不在主窗口中央</translation>
    </message>
    <message>
        <source>it is part of a form that is being designed</source>
        <translation>它是正在设计的窗体的一部分</translation>
    </message>
    <message>
        <source>it is a graphics view</source>
        <translation>它是图形视图</translation>
    </message>
    <message>
        <source>it is a surface of the graphics library or of a window</source>
        <translation>它是图形库或窗口的绘图面</translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>chosen at an earlier start</source>
        <translation>在以前启动时选定</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>the profile names its class %1</source>
        <translation>配置指明了它的类 %1</translation>
    </message>
    <message>
        <source>window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>view</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>none, perhaps before a drawing is open</source>
        <translation>无；可能尚未打开图形</translation>
    </message>
    <message>
        <source>left to be guessed, a class of Qt&apos;s own says too little</source>
        <translation>留待猜测，Qt 自己的类说明不了什么</translation>
    </message>
    <message>
        <source>view classes</source>
        <translation>视图的类</translation>
    </message>
    <message>
        <source>no view</source>
        <translation>不是视图</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>触发</translation>
    </message>
    <message>
        <source>one is made, since no menu of the menu bar is called Tools</source>
        <translation>新建一个：菜单栏中没有“工具”菜单</translation>
    </message>
    <message>
        <source>the profile names it</source>
        <translation>配置指明了它</translation>
    </message>
    <message>
        <source>its object name says so</source>
        <translation>依据对象名</translation>
    </message>
    <message>
        <source>its caption &quot;%1&quot; says so</source>
        <translation>依据标题“%1”</translation>
    </message>
    <message>
        <source>Tools menu</source>
        <translation>工具菜单</translation>
    </message>
    <message>
        <source>the profile names %1, which is not there at the moment</source>
        <translation>配置指明 %1，目前不存在</translation>
    </message>
    <message>
        <source>the action itself is called so</source>
        <translation>动作本身就叫这个名称</translation>
    </message>
    <message>
        <source>no action has a matching shortcut, icon, object name or caption</source>
        <translation>没有快捷键、图标、对象名或标题相符的动作</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1 cannot be written, new commands are forgotten</source>
        <translation>无法写入 %1，新命令不会被记住</translation>
    </message>
    <message>
        <source>%1 is damaged, %2 is used</source>
        <translation>%1 已损坏，使用 %2</translation>
    </message>
    <message>
        <source>%1 is damaged, and there is no good copy of it</source>
        <translation>%1 已损坏，且没有完好的副本</translation>
    </message>
    <message>
        <source>%1 is too large, its commands are not offered</source>
        <translation>%1 太大，不提供其中的命令</translation>
    </message>
    <message>
        <source>%1 cannot be read, its commands are not offered</source>
        <translation>无法读取 %1，不提供其中的命令</translation>
    </message>
    <message>
        <source>%1 is of a later version (%2), its commands are not offered</source>
        <translation>%1 来自更新的版本（%2），不提供其中的命令</translation>
    </message>
    <message>
        <source>%1 is not a list of commands and is left alone</source>
        <translation>%1 不是命令列表，保持原样</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1，位于第 %2 字节</translation>
    </message>
    <message>
        <source>it is not an object</source>
        <translation>它不是对象</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>未知的键“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a string</source>
        <translation>“%1”不是字符串</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list</source>
        <translation>“%1”不是列表</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds something that is not a name</source>
        <translation>“%1”中有不是名称的内容</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an object</source>
        <translation>“%1”不是对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>“%1”既不是 true 也不是 false</translation>
    </message>
    <message>
        <source>&quot;trigger.button&quot; names no mouse button: &quot;%1&quot;</source>
        <translation>“trigger.button”不是鼠标按键：“%1”</translation>
    </message>
    <message>
        <source>&quot;trigger.modifiers&quot; names no key: &quot;%1&quot;</source>
        <translation>“trigger.modifiers”不是按键：“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger: &quot;%2&quot;</source>
        <translation>“%1”不是触发方式：“%2”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a file and what is around the value</source>
        <translation>“%1”需要文件以及值前后的文字</translation>
    </message>
    <message>
        <source>&quot;%1.triggers.%2&quot; names no trigger</source>
        <translation>“%1.triggers.%2”不是触发方式</translation>
    </message>
    <message>
        <source>&quot;wellKnownCommands.%1&quot; names no action</source>
        <translation>“wellKnownCommands.%1”没有指明动作</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no direction</source>
        <translation>“%1”不是方向</translation>
    </message>
    <message>
        <source>&quot;tasks&quot; names two ways to know the task</source>
        <translation>“tasks”给出了两种识别任务的方式</translation>
    </message>
    <message>
        <source>&quot;tasks.firstBindings.%1&quot; is not an object</source>
        <translation>“tasks.firstBindings.%1”不是对象</translation>
    </message>
    <message>
        <source>&quot;version&quot; is missing or not a number</source>
        <translation>缺少“version”或它不是数字</translation>
    </message>
    <message>
        <source>version %1 is not known</source>
        <translation>版本 %1 未知</translation>
    </message>
    <message>
        <source>&quot;program&quot; is &quot;%1&quot;, not &quot;%2&quot;</source>
        <translation>“program”是“%1”，不是“%2”</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>它不是文件</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>它太长</translation>
    </message>
    <message>
        <source>the profile %1 is not used: %2</source>
        <translation>未使用配置 %1：%2</translation>
    </message>
    <message>
        <source>%1 cannot be read, its bindings are not used</source>
        <translation>无法读取 %1，不使用其中的绑定</translation>
    </message>
    <message>
        <source>%1 was damaged and is restored from %2</source>
        <translation>%1 曾损坏，已从 %2 恢复</translation>
    </message>
    <message>
        <source>%1 is not a file, so no copy of the settings is kept</source>
        <translation>%1 不是文件，因此不保留设置的副本</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>%1 cannot be written, since another program holds %1.lock</source>
        <translation>无法写入 %1，因为另一个程序占用 %1.lock</translation>
    </message>
    <message>
        <source>it has no widgets</source>
        <translation>它没有窗口部件</translation>
    </message>
    <message>
        <source>it brings gestures of its own</source>
        <translation>它自带手势</translation>
    </message>
    <message>
        <source>%1 cannot be written, changes last until the program ends</source>
        <translation>无法写入 %1，更改只保留到程序结束</translation>
    </message>
    <message>
        <source>a host that was stopped cannot start again</source>
        <translation>已停止的宿主不能再次启动</translation>
    </message>
    <message>
        <source>this program has a host already</source>
        <translation>此程序已有宿主</translation>
    </message>
    <message>
        <source>there is no main window to host</source>
        <translation>没有可承载的主窗口</translation>
    </message>
    <message>
        <source>it is not a library</source>
        <translation>它不是库</translation>
    </message>
    <message>
        <source>it is cut short</source>
        <translation>它被截断</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>未知异常</translation>
    </message>
    <message>
        <source>there is no module &apos;%1&apos;</source>
        <translation>没有模块“%1”</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; cannot be loaded: %2</source>
        <translation>无法加载模块“%1”：%2</translation>
    </message>
    <message>
        <source>the module cannot be loaded: %1</source>
        <translation>无法加载模块：%1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a module: it lacks %2</source>
        <translation>“%1”不是模块：缺少 %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; failed to name its version: %2</source>
        <translation>模块“%1”未能给出版本：%2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; is for version %2 of the platform, this is %3</source>
        <translation>模块“%1”用于平台版本 %2，当前为 %3</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not be created: %2</source>
        <translation>无法创建模块“%1”：%2</translation>
    </message>
    <message>
        <source>it gave no object</source>
        <translation>它没有给出对象</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not start: %2</source>
        <translation>模块“%1”无法启动：%2</translation>
    </message>
    <message>
        <source>the profile says so</source>
        <translation>依据配置</translation>
    </message>
    <message>
        <source>nothing says otherwise</source>
        <translation>没有其他指定</translation>
    </message>
    <message>
        <source>the settings say so</source>
        <translation>依据设置</translation>
    </message>
    <message>
        <source>the settings name no trigger: &quot;%1&quot;</source>
        <translation>设置中的触发方式无效：“%1”</translation>
    </message>
    <message>
        <source>OpenGL paints the drawing, and such programs need the right button</source>
        <translation>图形由 OpenGL 绘制，这类程序需要右键</translation>
    </message>
    <message>
        <source>the program itself is set to %1</source>
        <translation>程序自身设置为 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty</source>
        <translation>“%1”为空</translation>
    </message>
    <message>
        <source>gestures are off, since %1 crashed in their code; to switch them on: %2</source>
        <translation>%1 在手势代码中崩溃，手势此后已关闭；要启用：%2</translation>
    </message>
    <message>
        <source>remove %1 from %2</source>
        <translation>从 %2 中删除 %1</translation>
    </message>
</context>
</TS>
