<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>HOST_WINDOW</name>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>编程器(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>配置器件(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>器件系列(&amp;F):</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>配置模式(&amp;M):</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>配置器件(&amp;D):</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>数据库目录(&amp;R):</translation>
    </message>
</context>
</TS>
