<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>gfpq_dlg</name>
    <message>
        <source>Configuration Device</source>
        <translation>配置器件</translation>
    </message>
    <message>
        <source>Device family: </source>
        <translation>器件系列： </translation>
    </message>
    <message>
        <source>Configuration mode: </source>
        <translation>配置模式： </translation>
    </message>
    <message>
        <source>Custom database directory:</source>
        <translation>自定义数据库目录：</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>Name filter:</source>
        <translation>名称筛选：</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Device name: </source>
        <translation>器件名称： </translation>
    </message>
    <message>
        <source>Device ID: </source>
        <translation>器件 ID： </translation>
    </message>
    <message>
        <source>Device I/O voltage: </source>
        <translation>器件 I/O 电压： </translation>
    </message>
    <message>
        <source>Device density: </source>
        <translation>器件容量： </translation>
    </message>
    <message>
        <source>Total device die:</source>
        <translation>裸片总数：</translation>
    </message>
    <message>
        <source>Single I/O mode dummy clock: </source>
        <translation>单线 I/O 模式空时钟周期数： </translation>
    </message>
    <message>
        <source>Quad I/O mode dummy clock:</source>
        <translation>四线 I/O 模式空时钟周期数：</translation>
    </message>
    <message>
        <source>Programming flow template: </source>
        <translation>编程流程模板： </translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>编辑...</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translation>另存为模板</translation>
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
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>%1: flow chart</source>
        <translation>%1：流程图</translation>
    </message>
    <message>
        <source>%1: actions</source>
        <translation>%1：动作</translation>
    </message>
    <message>
        <source>%1: properties of the selected action</source>
        <translation>%1：所选动作的属性</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>器件</translation>
    </message>
    <message>
        <source>Failed to save flash as %1 tab has invalid property value: 

%2</source>
        <translation>无法保存闪存器件，因为“%1”选项卡中有无效的属性值： 

%2</translation>
    </message>
    <message>
        <source>Tempate name &apos;%1&apos; is conflicts with the device name %2.</source>
        <translation>模板名称“%1”与器件名称 %2 冲突。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Failed to set the custom database directory to </source>
        <translation>无法将自定义数据库目录设置为 </translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>i.e. 0xC2 0x20 0x19</source>
        <translation>例如 0xC2 0x20 0x19</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Actions:</source>
        <translation>动作：</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>gfpq_edit_template_dlg</name>
    <message>
        <source>Edit Templates</source>
        <translation>编辑模板</translation>
    </message>
    <message>
        <source>Templates:</source>
        <translation>模板：</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
</TS>
