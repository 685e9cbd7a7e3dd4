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
        <source>Mouse gestures start with %1. Set it by mouse-gestures --trigger %2</source>
        <translation>鼠标手势以 %1 开始。更改：mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>这是所有任务共用的圆环。</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>这是 %1 的圆环。</translation>
    </message>
</context>
</TS>
