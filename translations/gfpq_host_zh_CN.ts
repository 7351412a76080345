<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>BRING_BACK_DIALOG</name>
    <message>
        <source>Under &amp;another name:</source>
        <translation>使用其他名称(&amp;A)：</translation>
    </message>
    <message>
        <source>Bring Back</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>新名称</translation>
    </message>
    <message>
        <source>The template &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>模板“%1”将恢复为 %2 之前的内容（状态 %3）。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>器件“%1”将恢复为 %2 之前的内容（状态 %3）。</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>恢复(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Replace it; it goes into the history</source>
        <translation>替换；当前状态进入历史记录(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Under its name</source>
        <translation>使用原名称(&amp;U)</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2.</source>
        <translation>当前的“%1”保存于 %2。</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2 by %3.</source>
        <translation>当前的“%1”由 %3 保存于 %2。</translation>
    </message>
    <message>
        <source>A device has this name now. A template cannot have the name of a device: give it another one.</source>
        <translation>现在有器件使用此名称。模板不能与器件同名：请另取名称。</translation>
    </message>
    <message>
        <source>A template has this name now. A device cannot have the name of a template: give it another one.</source>
        <translation>现在有模板使用此名称。器件不能与模板同名：请另取名称。</translation>
    </message>
    <message>
        <source>Enter the new name.</source>
        <translation>请输入新名称。</translation>
    </message>
</context>
<context>
    <name>CHART_SAVER</name>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF 文档 (*.pdf)</translation>
    </message>
    <message>
        <source>SVG picture (*.svg)</source>
        <translation>SVG 图片 (*.svg)</translation>
    </message>
    <message>
        <source>Save Flow Charts</source>
        <translation>保存流程图</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>无法写入文件 %1：%2</translation>
    </message>
</context>
<context>
    <name>COMPARE_DIALOG</name>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>There are no differences.</source>
        <translation>没有差异。</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>差异：%1</translation>
    </message>
    <message>
        <source>&amp;Only differences</source>
        <translation>仅差异(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Previous Difference</source>
        <translation>上一处差异(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next Difference</source>
        <translation>下一处差异(&amp;N)</translation>
    </message>
    <message>
        <source>Copy as &amp;Diff</source>
        <translation>复制为 diff(&amp;D)</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>%1：“%2”和“%3”</translation>
    </message>
</context>
<context>
    <name>COMPARE_MODEL</name>
    <message>
        <source>Different</source>
        <translation>不同</translation>
    </message>
    <message>
        <source>Only on the left</source>
        <translation>仅左侧</translation>
    </message>
    <message>
        <source>Only on the right</source>
        <translation>仅右侧</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>相同</translation>
    </message>
</context>
<context>
    <name>CONNECTION_PANEL</name>
    <message>
        <source>Emulated chip</source>
        <translation>模拟芯片</translation>
    </message>
    <message>
        <source>Network (serprog)</source>
        <translation>网络 (serprog)</translation>
    </message>
    <message>
        <source>Serial line (serprog)</source>
        <translation>串口 (serprog)</translation>
    </message>
    <message>
        <source>De&amp;tect</source>
        <translation>检测(&amp;T)</translation>
    </message>
    <message>
        <source>Co&amp;nnection:</source>
        <translation>连接(&amp;N)：</translation>
    </message>
    <message>
        <source>none: in memory</source>
        <translation>无：在内存中</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>&amp;Keep contents in:</source>
        <translation>内容保存于(&amp;K)：</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>端口：</translation>
    </message>
    <message>
        <source>S&amp;erial line:</source>
        <translation>串口(&amp;E)：</translation>
    </message>
    <message>
        <source>Baud rate:</source>
        <translation>波特率：</translation>
    </message>
    <message>
        <source>Contents of the Emulated Chip</source>
        <translation>模拟芯片的内容</translation>
    </message>
    <message>
        <source>The connection is not complete.</source>
        <translation>连接信息不完整。</translation>
    </message>
    <message>
        <source>the programmer&apos;s own</source>
        <translation>编程器自身的时钟</translation>
    </message>
    <message>
        <source>Clock (Hz):</source>
        <translation>时钟 (Hz)：</translation>
    </message>
    <message>
        <source>The clock is not a number of hertz.</source>
        <translation>时钟不是以 Hz 为单位的数字。</translation>
    </message>
    <message>
        <source>H&amp;ost:</source>
        <translation>主机(&amp;O)：</translation>
    </message>
</context>
<context>
    <name>COPY_DIALOG</name>
    <message>
        <source>Duplicate</source>
        <translation>复制器件</translation>
    </message>
    <message>
        <source>&amp;Copy of:</source>
        <translation>复制自(&amp;C)：</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>新名称(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>复制(&amp;D)</translation>
    </message>
    <message>
        <source>Choose the device to copy.</source>
        <translation>请选择要复制的器件。</translation>
    </message>
</context>
<context>
    <name>DATABASE_DEVICE_MENU</name>
    <message>
        <source>&amp;Open in the Configuration Device Dialog</source>
        <translation>在配置器件对话框中打开(&amp;O)</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>复制(&amp;U)...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>比较(&amp;C)...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>保存流程图(&amp;H)...</translation>
    </message>
</context>
<context>
    <name>DATABASE_EDIT_MENU</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>查找(&amp;F)</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>删除“%1”</translation>
    </message>
    <message>
        <source>Delete, devices: %1</source>
        <translation>删除，器件：%1</translation>
    </message>
</context>
<context>
    <name>DATABASE_MENU</name>
    <message>
        <source>&amp;Open Directory...</source>
        <translation>打开目录(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Recent Directories</source>
        <translation>最近的目录(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>刷新(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>导入(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>导出(&amp;E)...</translation>
    </message>
</context>
<context>
    <name>DATABASE_WINDOW</name>
    <message>
        <source>Devices</source>
        <translation>器件</translation>
    </message>
    <message>
        <source>Da&amp;tabase</source>
        <translation>数据库(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>器件(&amp;D)</translation>
    </message>
    <message>
        <source>Device Database - %1</source>
        <translation>器件数据库 - %1</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>打开目录</translation>
    </message>
    <message>
        <source>The directory is used now, but could not be stored in the settings.</source>
        <translation>现在使用该目录，但未能将其保存到设置中。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist any more.</source>
        <translation>器件“%1”已不存在。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>器件“%1”已保存。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is deleted. Ctrl+Z brings it back.</source>
        <translation>已删除器件“%1”。按 Ctrl+Z 可恢复。</translation>
    </message>
    <message>
        <source>Devices deleted: %1. Ctrl+Z brings them back.</source>
        <translation>已删除器件：%1。按 Ctrl+Z 可恢复。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is back.</source>
        <translation>器件“%1”已恢复。</translation>
    </message>
    <message>
        <source>Devices brought back: %1</source>
        <translation>已恢复器件：%1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>流程图已保存到 %1。</translation>
    </message>
    <message>
        <source>Files of Records</source>
        <translation>记录文件</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Devices are being deleted.</source>
        <translation>正在删除器件。</translation>
    </message>
    <message>
        <source>Devices deleted: %1 of %2. Ctrl+Z brings them back.</source>
        <translation>已删除器件：%1/%2。按 Ctrl+Z 可恢复。</translation>
    </message>
    <message>
        <source>Devices are being brought back.</source>
        <translation>正在恢复器件。</translation>
    </message>
    <message>
        <source>Devices brought back: %1 of %2. Ctrl+Z goes on.</source>
        <translation>已恢复器件：%1/%2。按 Ctrl+Z 继续。</translation>
    </message>
</context>
<context>
    <name>DATA_PAGE</name>
    <message>
        <source>Go to:</source>
        <translation>转到：</translation>
    </message>
    <message>
        <source>Previous Difference</source>
        <translation>上一处差异</translation>
    </message>
    <message>
        <source>Next Difference</source>
        <translation>下一处差异</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>另存为...</translation>
    </message>
    <message>
        <source>Nothing was read. Check Examine to read the chip.</source>
        <translation>未读取任何内容。要读取芯片，请选中 Examine。</translation>
    </message>
    <message>
        <source>%1 was read.</source>
        <translation>已读取 %1。</translation>
    </message>
    <message>
        <source>%1 was read. It is what the file has.</source>
        <translation>已读取 %1，与文件一致。</translation>
    </message>
    <message>
        <source>%1 was read. Bytes that differ from the file: %2</source>
        <translation>已读取 %1。与文件不同的字节数：%2</translation>
    </message>
    <message>
        <source>Save What Was Read</source>
        <translation>保存读取的内容</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>无法写入文件 %1：%2</translation>
    </message>
    <message>
        <source>%1: %2, expected %3</source>
        <translation>%1：%2，预期 %3</translation>
    </message>
    <message>
        <source>Bytes that were read</source>
        <translation>读取的字节</translation>
    </message>
    <message>
        <source>The file %1 keeps the contents of the emulated chip. Choose another one.</source>
        <translation>文件 %1 保存着模拟芯片的内容。请选择其他文件。</translation>
    </message>
</context>
<context>
    <name>DETECTED_DIALOG</name>
    <message>
        <source>Detect</source>
        <translation>检测</translation>
    </message>
    <message>
        <source>The chip has the ID %1. Devices with this ID:</source>
        <translation>芯片的 ID 是 %1。具有此 ID 的器件：</translation>
    </message>
</context>
<context>
    <name>DEVICE_MODEL</name>
    <message>
        <source>all</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Built in</source>
        <translation>内置</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>自有</translation>
    </message>
    <message>
        <source>Of own devices they are read from the flows when they are shown for the first time. Those not read yet are sorted as the highest.</source>
        <translation>自有器件的地址字节数在首次显示时从流程中读取。尚未读取的按最大值排序。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>制造商</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>器件 ID</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>地址字节数</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>裸片数</translation>
    </message>
    <message>
        <source>Device family</source>
        <translation>器件系列</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>更改时间</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>更改者</translation>
    </message>
</context>
<context>
    <name>DEVICE_PAGE</name>
    <message>
        <source>&amp;Find:</source>
        <translation>查找(&amp;F)：</translation>
    </message>
    <message>
        <source>Name, maker, density, voltage or device ID</source>
        <translation>名称、制造商、容量、电压或器件 ID</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>器件</translation>
    </message>
    <message>
        <source>%1 of %2 devices</source>
        <translation>器件：%1 / %2</translation>
    </message>
</context>
<context>
    <name>DEVICE_PANEL</name>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>器件系列(&amp;F)：</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>配置模式(&amp;M)：</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>配置器件(&amp;D)：</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>数据库目录(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>配置器件(&amp;C)...</translation>
    </message>
</context>
<context>
    <name>DEVICE_PROGRESS</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>DEVICE_SOURCES</name>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>器件“%1”不存在。</translation>
    </message>
</context>
<context>
    <name>EXPORT_DIALOG</name>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Selected records: %1</source>
        <translation>所选记录：%1</translation>
    </message>
    <message>
        <source>All stored devices and templates</source>
        <translation>所有已保存的器件和模板</translation>
    </message>
    <message>
        <source>All built-in devices</source>
        <translation>所有内置器件</translation>
    </message>
    <message>
        <source>One JSON file</source>
        <translation>一个 JSON 文件</translation>
    </message>
    <message>
        <source>One JSON file for each record</source>
        <translation>每条记录一个 JSON 文件</translation>
    </message>
    <message>
        <source>CSV list of the devices, without flows</source>
        <translation>器件的 CSV 列表，不含流程</translation>
    </message>
    <message>
        <source>For a &amp;spreadsheet (cannot be imported again)</source>
        <translation>用于电子表格（无法再次导入）(&amp;S)</translation>
    </message>
    <message>
        <source>Texts that a spreadsheet would run as formulas get an apostrophe.</source>
        <translation>电子表格会当作公式执行的文本前会加上撇号。</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Records:</source>
        <translation>记录(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>格式(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>导出到(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>导出(&amp;E)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Directory for the Files</source>
        <translation>文件的目录</translation>
    </message>
    <message>
        <source>File for the Records</source>
        <translation>记录的文件</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>以下文件已存在：</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>替换(&amp;P)</translation>
    </message>
    <message>
        <source>Enter where the records go.</source>
        <translation>请输入记录的导出位置。</translation>
    </message>
    <message>
        <source>There is nothing to export.</source>
        <translation>没有可导出的内容。</translation>
    </message>
    <message>
        <source>Exported records: %1, into %2</source>
        <translation>已导出记录：%1，位置：%2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>These cannot be read, and are not exported:</source>
        <translation>以下记录无法读取，未导出：</translation>
    </message>
</context>
<context>
    <name>FILE_PANEL</name>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>浏览(&amp;W)...</translation>
    </message>
    <message>
        <source>No file. A file can be dropped on the window.</source>
        <translation>没有文件。可将文件拖放到窗口上。</translation>
    </message>
    <message>
        <source>F&amp;ile:</source>
        <translation>文件(&amp;I)：</translation>
    </message>
    <message>
        <source>File &amp;begins at:</source>
        <translation>文件起始于(&amp;B)：</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>正在读取文件。</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
    <message>
        <source>%1 bytes, CRC-32 %2</source>
        <translation>%1 字节，CRC-32 %2</translation>
    </message>
    <message>
        <source>File to Program</source>
        <translation>要编程的文件</translation>
    </message>
</context>
<context>
    <name>FILE_SUMMARY</name>
    <message>
        <source>It is not a file.</source>
        <translation>它不是文件。</translation>
    </message>
</context>
<context>
    <name>HELP_MENU</name>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>用户指南(&amp;U)</translation>
    </message>
    <message>
        <source>Device &amp;Database</source>
        <translation>器件数据库(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Programming</source>
        <translation>编程(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Flows</source>
        <translation>流程(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Command Line</source>
        <translation>命令行(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>The guide is not installed. It would be here:
%1</source>
        <translation>未安装该指南。其位置应为：
%1</translation>
    </message>
    <message>
        <source>No program shows this guide. Open it with a viewer or an editor:
%1</source>
        <translation>没有程序可以显示此指南。请用查看器或编辑器打开：
%1</translation>
    </message>
    <message>
        <source>%1 %2

Licence: MIT
Qt %3

The built-in devices are public facts about flash parts. The names of parts belong to their makers.</source>
        <translation>%1 %2

许可证：MIT
Qt %3

内置器件是有关闪存型号的公开资料。型号名称归其制造商所有。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
</context>
<context>
    <name>HISTORY_MENU</name>
    <message>
        <source>Compare with the &amp;Next State</source>
        <translation>与下一状态比较(&amp;N)</translation>
    </message>
    <message>
        <source>Compare with the &amp;Previous State</source>
        <translation>与上一状态比较(&amp;P)</translation>
    </message>
    <message>
        <source>Compare with the &amp;Current State</source>
        <translation>与当前状态比较(&amp;C)</translation>
    </message>
    <message>
        <source>Compare the Two &amp;Selected States</source>
        <translation>比较所选的两个状态(&amp;S)</translation>
    </message>
</context>
<context>
    <name>HISTORY_MODEL</name>
    <message>
        <source>Changed</source>
        <translation>更改时间</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>已放回</translation>
    </message>
    <message>
        <source>This state was replaced by another one.</source>
        <translation>此状态已被另一状态替换。</translation>
    </message>
    <message>
        <source>This state was deleted.</source>
        <translation>此状态已被删除。</translation>
    </message>
    <message>
        <source>This state was deleted, and put back because it could not be replaced.</source>
        <translation>此状态曾被删除，因无法替换而放回。</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>器件</translation>
    </message>
    <message>
        <source>When</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>编号</translation>
    </message>
</context>
<context>
    <name>HISTORY_PAGE</name>
    <message>
        <source>&amp;Compare</source>
        <translation>比较(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Bring Back...</source>
        <translation>恢复(&amp;B)...</translation>
    </message>
    <message>
        <source>Devices and templates</source>
        <translation>器件和模板</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>器件</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>名称(&amp;M)：</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>用户(&amp;U)：</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>类型(&amp;K)：</translation>
    </message>
    <message>
        <source>States: %1, searching...</source>
        <translation>状态：%1，正在搜索...</translation>
    </message>
    <message>
        <source>States: more than %1</source>
        <translation>状态：超过 %1</translation>
    </message>
    <message>
        <source>States: %1</source>
        <translation>状态：%1</translation>
    </message>
    <message>
        <source>There is no state before this one.</source>
        <translation>此状态之前没有其他状态。</translation>
    </message>
    <message>
        <source>There is no state after this one: it was deleted or renamed.</source>
        <translation>此状态之后没有其他状态：已被删除或重命名。</translation>
    </message>
    <message>
        <source>There is no current state: it was deleted or renamed.</source>
        <translation>没有当前状态：已被删除或重命名。</translation>
    </message>
    <message>
        <source>A state was removed from the history.</source>
        <translation>一个状态已从历史记录中移除。</translation>
    </message>
</context>
<context>
    <name>IMPORT_DIALOG</name>
    <message>
        <source>Import: %1</source>
        <translation>导入：%1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>As in the files</source>
        <translation>与文件中相同</translation>
    </message>
    <message>
        <source>&amp;Replace records that differ</source>
        <translation>替换不同的记录(&amp;R)</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>器件系列(&amp;F)：</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>配置模式(&amp;M)：</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>导入(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>比较(&amp;C)...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>The files are being read.</source>
        <translation>正在读取文件。</translation>
    </message>
    <message>
        <source>Nothing is imported while there are problems.</source>
        <translation>存在问题时不会导入任何内容。</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>没有可导入的内容。</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>文件中</translation>
    </message>
    <message>
        <source>The records are being stored.</source>
        <translation>正在保存记录。</translation>
    </message>
    <message>
        <source>Nothing was imported: %1
The preview was made again.</source>
        <translation>未导入任何内容：%1
已重新生成预览。</translation>
    </message>
    <message>
        <source>Imported into %1. New: %2, replaced: %3</source>
        <translation>已导入到 %1。新增：%2，替换：%3</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Nothing was imported: you have cancelled it.</source>
        <translation>未导入任何内容：您已取消导入。</translation>
    </message>
</context>
<context>
    <name>IMPORT_MODEL</name>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Will be replaced</source>
        <translation>将被替换</translation>
    </message>
    <message>
        <source>Differs, not imported</source>
        <translation>不同，不导入</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>已存在</translation>
    </message>
    <message>
        <source>%1: differs</source>
        <translation>%1：不同</translation>
    </message>
    <message>
        <source>%1: stored %2, in the file %3</source>
        <translation>%1：已保存 %2，文件中 %3</translation>
    </message>
    <message>
        <source>Differs in: %1</source>
        <translation>不同之处：%1</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>备注</translation>
    </message>
</context>
<context>
    <name>MODULE_LOADER</name>
    <message>
        <source>The dialog module was not found. Searched:
%1</source>
        <translation>找不到对话框模块。已查找：
%1</translation>
    </message>
    <message>
        <source>The dialog module %1 is not loaded: everyone may change %2.</source>
        <translation>未加载对话框模块 %1：任何人都可以更改 %2。</translation>
    </message>
    <message>
        <source>The dialog module %1 cannot be loaded:
%2</source>
        <translation>无法加载对话框模块 %1：
%2</translation>
    </message>
    <message>
        <source>The dialog module %1 has no function &quot;%2&quot;.</source>
        <translation>对话框模块 %1 没有函数“%2”。</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DESK</name>
    <message>
        <source>New Device</source>
        <translation>新器件</translation>
    </message>
    <message>
        <source>SFDP Read-Out of a Chip</source>
        <translation>芯片的 SFDP 数据</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DIALOG</name>
    <message>
        <source>New Device</source>
        <translation>新器件</translation>
    </message>
    <message>
        <source>New Device: %1</source>
        <translation>新器件：%1</translation>
    </message>
    <message>
        <source>&amp;Warnings:</source>
        <translation>警告(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Listed parts with this ID:</source>
        <translation>具有此 ID 的已列型号(&amp;L)：</translation>
    </message>
    <message>
        <source>Create &amp;Device</source>
        <translation>创建器件(&amp;D)</translation>
    </message>
    <message>
        <source>Save &amp;Read-Out...</source>
        <translation>保存读出数据(&amp;R)...</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>no differences</source>
        <translation>无差异</translation>
    </message>
    <message>
        <source>Save the Read-Out</source>
        <translation>保存读出数据</translation>
    </message>
    <message>
        <source>What was entered has changed other values or the warnings. Look at them, then create the device.</source>
        <translation>输入的内容改变了其他值或警告。请先查看，然后再创建器件。</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DRAFT</name>
    <message>
        <source>ID %1</source>
        <translation>ID %1</translation>
    </message>
</context>
<context>
    <name>ORDER_PANEL</name>
    <message>
        <source>What the file covers</source>
        <translation>文件覆盖的部分</translation>
    </message>
    <message>
        <source>The whole device</source>
        <translation>整个器件</translation>
    </message>
    <message>
        <source>Address and length</source>
        <translation>地址和长度</translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation>范围(&amp;G)：</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>地址(&amp;A)：</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>长度：</translation>
    </message>
</context>
<context>
    <name>PLACE_FIELDS</name>
    <message>
        <source>Device &amp;family:</source>
        <translation>器件系列(&amp;F)：</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>配置模式(&amp;M)：</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_MENU</name>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>配置器件(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Detect</source>
        <translation>检测(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Open File...</source>
        <translation>打开文件(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Try the Flow</source>
        <translation>试运行流程(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>开始(&amp;S)</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>取消(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;New Device from Chip...</source>
        <translation>从芯片新建器件(&amp;N)...</translation>
    </message>
    <message>
        <source>New Device from S&amp;FDP File...</source>
        <translation>从 SFDP 文件新建器件(&amp;F)...</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>复制器件(&amp;U)...</translation>
    </message>
    <message>
        <source>Device Data&amp;base...</source>
        <translation>器件数据库(&amp;B)...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>保存流程图(&amp;H)...</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_WINDOW</name>
    <message>
        <source>Device</source>
        <translation>器件</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>跟踪</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>编程器(&amp;P)</translation>
    </message>
    <message>
        <source>Not started: %1</source>
        <translation>未开始：%1</translation>
    </message>
    <message>
        <source>The place where the file begins is not a number.</source>
        <translation>文件起始位置不是数字。</translation>
    </message>
    <message>
        <source>Address or length is not a number.</source>
        <translation>地址或长度不是数字。</translation>
    </message>
    <message>
        <source>Nothing was detected: %1</source>
        <translation>未检测到任何器件：%1</translation>
    </message>
    <message>
        <source>The chip has the ID %1.</source>
        <translation>芯片的 ID 是 %1。</translation>
    </message>
    <message>
        <source>No device has the ID %1.</source>
        <translation>没有 ID 为 %1 的器件。</translation>
    </message>
    <message>
        <source>The run is being cancelled. If it is stopped at once, the state of the chip is unknown.</source>
        <translation>正在取消运行。如果立即停止，芯片的状态将未知。</translation>
    </message>
    <message>
        <source>A run is under way. Cancel it and close the window?</source>
        <translation>正在运行。要取消并关闭窗口吗？</translation>
    </message>
    <message>
        <source>Stop at once</source>
        <translation>立即停止</translation>
    </message>
    <message>
        <source>Cancel the run</source>
        <translation>取消运行</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>等待</translation>
    </message>
    <message>
        <source>Keep running</source>
        <translation>继续运行</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>器件“%1”已保存。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is not there, or of a family or mode that is not offered here.</source>
        <translation>器件“%1”不存在，或其系列或模式在此处不可选。</translation>
    </message>
    <message>
        <source>The flow charts cannot be saved: %1</source>
        <translation>无法保存流程图：%1</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>流程图已保存到 %1。</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>READ_OUT_FILE</name>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <translation>无法读取文件 %1：%2</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 不是文件。</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes and is not an SFDP read-out.</source>
        <translation>文件 %1 超过 %2 字节，不是 SFDP 数据。</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>无法写入文件 %1：%2</translation>
    </message>
</context>
<context>
    <name>RECORD_COMPARISON</name>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>Built-in device</source>
        <translation>内置器件</translation>
    </message>
    <message>
        <source>Own device</source>
        <translation>自有器件</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>四线 I/O 流程</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>单线 I/O 流程</translation>
    </message>
    <message>
        <source>The flow cannot be read.</source>
        <translation>无法读取流程。</translation>
    </message>
</context>
<context>
    <name>RECORD_EXPORT</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>无法写入文件 %1：%2</translation>
    </message>
</context>
<context>
    <name>RECORD_STATES</name>
    <message>
        <source>%1, state %2 (until %3)</source>
        <translation>%1，状态 %2（至 %3）</translation>
    </message>
    <message>
        <source>%1, now</source>
        <translation>%1，当前</translation>
    </message>
</context>
<context>
    <name>REMOVED_DEVICES</name>
    <message>
        <source>The device &quot;%1&quot; was deleted by another program already.</source>
        <translation>器件“%1”已被其他程序删除。</translation>
    </message>
    <message>
        <source>The history does not have the device &quot;%1&quot; any more.</source>
        <translation>历史记录中已没有器件“%1”。</translation>
    </message>
</context>
<context>
    <name>RUN_BAR</name>
    <message>
        <source>Progress of the run</source>
        <translation>运行进度</translation>
    </message>
    <message>
        <source>Tr&amp;y the Flow</source>
        <translation>试运行流程(&amp;Y)</translation>
    </message>
    <message>
        <source>Erases, programs and verifies an emulated chip. No hardware is needed or used.</source>
        <translation>擦除、编程并校验一个模拟芯片。不需要也不使用任何硬件。</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>开始(&amp;S)</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>取消(&amp;L)</translation>
    </message>
    <message>
        <source>The run is being cancelled.</source>
        <translation>正在取消运行。</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1：%2 / %3</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>剩余 %1</translation>
    </message>
</context>
<context>
    <name>RUN_PREPARATION</name>
    <message>
        <source>No operation is checked.</source>
        <translation>未选中任何操作。</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>未选择文件。</translation>
    </message>
    <message>
        <source>No device is chosen.</source>
        <translation>未选择器件。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>器件“%1”不存在。</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>无法读取文件 %1。</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>文件 %1 为空。</translation>
    </message>
    <message>
        <source>The file needs %1 bytes from %2 on, and the device has %3 bytes.</source>
        <translation>文件从 %2 起需要 %1 字节，而器件有 %3 字节。</translation>
    </message>
</context>
<context>
    <name>RUN_WORDS</name>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Failed at %1</source>
        <translation>在 %1 失败</translation>
    </message>
    <message>
        <source>Failed at %1, action %2 &quot;%3&quot;</source>
        <translation>在 %1 的动作 %2“%3”失败</translation>
    </message>
    <message>
        <source>Stopped. The state of the chip is unknown.</source>
        <translation>已停止。芯片的状态未知。</translation>
    </message>
    <message>
        <source>The connection is lost. The state of the chip is unknown.</source>
        <translation>连接已断开。芯片的状态未知。</translation>
    </message>
    <message>
        <source>Passed, but not everything could be stored</source>
        <translation>通过，但未能保存全部内容</translation>
    </message>
    <message>
        <source>Passed, but a real chip would have refused or misread commands: see the log</source>
        <translation>通过，但真实芯片会拒绝或误读某些命令：请查看日志</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>通过</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Not started: see the log</source>
        <translation>未开始：请查看日志</translation>
    </message>
    <message>
        <source>a test pattern</source>
        <translation>测试图案</translation>
    </message>
    <message>
        <source>Trying the flow of %1 on an emulated chip that is full of other data</source>
        <translation>在写满其他数据的模拟芯片上试运行 %1 的流程</translation>
    </message>
    <message>
        <source>Content: %1</source>
        <translation>内容：%1</translation>
    </message>
    <message>
        <source>Nothing more was sent, because this may be another chip than the device says.</source>
        <translation>未再发送任何内容，因为此芯片可能不是所选器件。</translation>
    </message>
    <message>
        <source>Note of the chip: %1</source>
        <translation>芯片的提示：%1</translation>
    </message>
    <message>
        <source>%1 (%2 commands, %3 s)</source>
        <translation>%1 (%2 条命令，%3 秒)</translation>
    </message>
    <message>
        <source>Whole sectors are erased. These bytes beside the range are erased, too:

%1

Erase them?</source>
        <translation>将擦除整个扇区。范围之外的以下字节也会被擦除：

%1

要擦除吗？</translation>
    </message>
    <message>
        <source>%1 on the connection %2</source>
        <translation>%1，连接 %2</translation>
    </message>
</context>
<context>
    <name>TRACE_MODEL</name>
    <message>
        <source>%1 ... (%2 bytes)</source>
        <translation>%1 ... (%2 字节)</translation>
    </message>
    <message>
        <source>%1, %2 clocks</source>
        <translation>%1，%2 个时钟</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>时间 (ms)</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>动作</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>线路</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>已发送</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>已接收</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>预期</translation>
    </message>
</context>
<context>
    <name>TRACE_PAGE</name>
    <message>
        <source>All operations</source>
        <translation>所有操作</translation>
    </message>
    <message>
        <source>Commands of:</source>
        <translation>命令范围：</translation>
    </message>
    <message>
        <source>Commands of the last run</source>
        <translation>上次运行的命令</translation>
    </message>
    <message>
        <source>%1 commands</source>
        <translation>%1 条命令</translation>
    </message>
</context>
</TS>
