<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>MgCommandDSModel</name>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>手势</translation>
    </message>
</context>
<context>
    <name>MgCommandModelDelegate</name>
    <message>
        <source>Gesture direction</source>
        <translation>手势方向</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManager</name>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>All Commands</source>
        <translation>所有命令</translation>
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
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Click to sort, or press Ctrl+1, Ctrl+2 or Ctrl+3</source>
        <translation>单击排序，或按 Ctrl+1、Ctrl+2、Ctrl+3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Taken from: %1</source>
        <translation>已从以下命令移除：%1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>This will delete all of the user defined mouse gestures and reset to the factory defaults. Do you want to continue?</source>
        <translation>这将删除所有用户定义的鼠标手势，并恢复为默认设置。是否继续？</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManagerClass</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>鼠标手势</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>类别：</translation>
    </message>
    <message>
        <source>Mouse Gesture assigned commands</source>
        <translation>仅显示已分配手势的命令</translation>
    </message>
    <message>
        <source>Search for:</source>
        <translation>搜索：</translation>
    </message>
    <message>
        <source>Enable mouse gestures</source>
        <translation>启用鼠标手势</translation>
    </message>
    <message>
        <source>4 Gestures</source>
        <translation>4 个手势</translation>
    </message>
    <message>
        <source>8 Gestures</source>
        <translation>8 个手势</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>恢复默认设置</translation>
    </message>
    <message>
        <source>Print List</source>
        <translation>打印列表</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Search for commands</source>
        <translation>搜索命令</translation>
    </message>
    <message>
        <source>Commands and their gestures</source>
        <translation>命令及其手势</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogPVStyleImpl</name>
    <message>
        <source>Mouse gesture</source>
        <translation>鼠标手势</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name of a command, what it does</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Others</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Mouse Gestures...</source>
        <translation>鼠标手势...</translation>
    </message>
    <message>
        <source>Customizes mouse gestures:</source>
        <translation>自定义鼠标手势：</translation>
    </message>
</context>
</TS>
