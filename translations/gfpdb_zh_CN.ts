<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>GFPC_CHARTS</name>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>无法读取 %1 的流程。</translation>
    </message>
    <message>
        <source>%1 has no quad-I/O flow.</source>
        <translation>%1 没有四线 I/O 流程。</translation>
    </message>
    <message>
        <source>%1 has no single-I/O flow.</source>
        <translation>%1 没有单线 I/O 流程。</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>There are no fonts on this computer.</source>
        <translation>此计算机上没有字体。</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>四线 I/O 流程</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>单线 I/O 流程</translation>
    </message>
</context>
<context>
    <name>gfpdb</name>
    <message>
        <source>Upper and lower case count as the same.</source>
        <translation>不区分大小写。</translation>
    </message>
    <message>
        <source>There is a built-in device called %1: choose another name.</source>
        <translation>已有名为 %1 的内置器件：请选择其他名称。</translation>
    </message>
    <message>
        <source>There is a built-in template called %1: choose another name.</source>
        <translation>已有名为 %1 的内置模板：请选择其他名称。</translation>
    </message>
    <message>
        <source>part name</source>
        <translation>型号名称</translation>
    </message>
    <message>
        <source>The device %1 is neither deleted nor replaced, because it could not be read when it was last looked for: %2</source>
        <translation>器件 %1 既未删除也未替换，因为上次查找时无法读取它：%2</translation>
    </message>
    <message>
        <source>The flows of %1 in %2 cannot be read.</source>
        <translation>无法读取 %2 中 %1 的流程。</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a number.</source>
        <translation>器件的属性 %1 不是数字。</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a text.</source>
        <translation>器件的属性 %1 不是文本。</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name.</source>
        <translation>已有名为 %1 的已保存模板：请选择其他名称。</translation>
    </message>
    <message>
        <source>There is a device called %1: it is the one that is shown. Enter another name to rename it.</source>
        <translation>已有名为 %1 的器件：即当前显示的器件。要重命名，请输入其他名称。</translation>
    </message>
    <message>
        <source>There is a device called %1 for this family and configuration mode: choose another name.</source>
        <translation>此系列和配置模式下已有名为 %1 的器件：请选择其他名称。</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name, or remove that template first.</source>
        <translation>已有名为 %1 的已保存模板：请选择其他名称，或先移除该模板。</translation>
    </message>
    <message>
        <source>The template name %1 differs from the device name %2 in case only: choose another name.</source>
        <translation>模板名称 %1 与器件名称 %2 仅大小写不同：请选择其他名称。</translation>
    </message>
    <message>
        <source>There is a device called %1: choose another name.</source>
        <translation>已有名为 %1 的器件：请选择其他名称。</translation>
    </message>
    <message>
        <source>A flash device with an I/O voltage of %1 cannot be connected to %2 devices: it must support 1.8 V.</source>
        <translation>I/O 电压为 %1 的闪存器件不能连接到 %2 器件：它必须支持 1.8 V。</translation>
    </message>
    <message>
        <source>%1 The device %2 that was deleted before was not put back: %3</source>
        <translation>%1先前删除的器件 %2 未能恢复：%3</translation>
    </message>
    <message>
        <source>There is no record to save.</source>
        <translation>没有可保存的记录。</translation>
    </message>
    <message>
        <source>The configuration mode has no flash devices.</source>
        <translation>此配置模式没有闪存器件。</translation>
    </message>
    <message>
        <source>The device %1 contains text that is not valid UTF-8.</source>
        <translation>器件 %1 含有不是有效 UTF-8 的文本。</translation>
    </message>
    <message>
        <source>The template %1 is built in: it cannot be removed.</source>
        <translation>模板 %1 是内置的：无法移除。</translation>
    </message>
    <message>
        <source>device name</source>
        <translation>器件名称</translation>
    </message>
    <message>
        <source>device ID</source>
        <translation>器件 ID</translation>
    </message>
    <message>
        <source>I/O voltage</source>
        <translation>器件 I/O 电压</translation>
    </message>
    <message>
        <source>density</source>
        <translation>器件容量</translation>
    </message>
    <message>
        <source>total die count</source>
        <translation>裸片总数</translation>
    </message>
    <message>
        <source>number of single-I/O dummy clocks</source>
        <translation>单线 I/O 模式空时钟周期数</translation>
    </message>
    <message>
        <source>number of quad-I/O dummy clocks</source>
        <translation>四线 I/O 模式空时钟周期数</translation>
    </message>
    <message>
        <source>template name</source>
        <translation>模板名称</translation>
    </message>
    <message>
        <source>flow template</source>
        <translation>编程流程模板</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>%1 到 %2 的整数</translation>
    </message>
    <message>
        <source>one byte in hexadecimal, such as 0x9F</source>
        <translation>一个十六进制字节，例如 0x9F</translation>
    </message>
    <message>
        <source>1 to %1 bytes in hexadecimal separated by single spaces, such as 0x00 0x02</source>
        <translation>1 到 %1 个十六进制字节，以单个空格分隔，例如 0x00 0x02</translation>
    </message>
    <message>
        <source>an address of eight hexadecimal digits, such as 0x00010000</source>
        <translation>八位十六进制地址，例如 0x00010000</translation>
    </message>
    <message>
        <source>%1, or %2</source>
        <translation>%1，或%2</translation>
    </message>
    <message>
        <source>text of 1 to %1 characters on one line</source>
        <translation>单行的 1 到 %1 个字符</translation>
    </message>
    <message>
        <source>a power of two from 1 to %1</source>
        <translation>1 到 %1 的 2 的幂</translation>
    </message>
    <message>
        <source>Loop marker</source>
        <translation>循环标记</translation>
    </message>
    <message>
        <source>There is no action property with the number %1. Allowed: 0 to %2.</source>
        <translation>没有编号为 %1 的动作属性。允许：0 到 %2。</translation>
    </message>
    <message>
        <source>An empty value</source>
        <translation>空值</translation>
    </message>
    <message>
        <source>%1 is not allowed for &quot;%2&quot;. Allowed: %3.</source>
        <translation>%1 不能用于“%2”。允许：%3。</translation>
    </message>
    <message>
        <source>The %1 is empty: 1 to %2 characters are allowed.</source>
        <translation>“%1”为空：允许 1 到 %2 个字符。</translation>
    </message>
    <message>
        <source>The %1 has characters that cannot be stored.</source>
        <translation>“%1”含有无法保存的字符。</translation>
    </message>
    <message>
        <source>The %1 has %2 characters: 1 to %3 characters are allowed.</source>
        <translation>“%1”有 %2 个字符：允许 1 到 %3 个字符。</translation>
    </message>
    <message>
        <source>The %1 has a line break or another control character: use letters, digits, punctuation and spaces.</source>
        <translation>“%1”含有换行或其他控制字符：请使用字母、数字、标点和空格。</translation>
    </message>
    <message>
        <source>The %1 %2 begins or ends with a space: remove it.</source>
        <translation>“%1”%2 以空格开头或结尾：请将其删除。</translation>
    </message>
    <message>
        <source>The %1 %2 is reserved for a new device: choose another.</source>
        <translation>“%1”%2 保留给新器件：请选择其他名称。</translation>
    </message>
    <message>
        <source>%1 Enter 1 to %2 bytes in hexadecimal, separated by spaces or commas, for example 0xC2 0x20 0x19.</source>
        <translation>%1请输入 1 到 %2 个十六进制字节，以空格或逗号分隔，例如 0xC2 0x20 0x19。</translation>
    </message>
    <message>
        <source>The device ID is empty.</source>
        <translation>器件 ID 为空。</translation>
    </message>
    <message>
        <source>%1 is not a byte of a device ID.</source>
        <translation>%1 不是器件 ID 的字节。</translation>
    </message>
    <message>
        <source>The device ID has %1 bytes.</source>
        <translation>器件 ID 有 %1 个字节。</translation>
    </message>
    <message>
        <source>The %1 %2 is out of range: %3 to %4 are allowed.</source>
        <translation>“%1”的值 %2 超出范围：允许 %3 到 %4。</translation>
    </message>
    <message>
        <source>The %1 %2 is not known: choose one of %3.</source>
        <translation>“%1”的值 %2 未知：请从 %3 中选择。</translation>
    </message>
    <message>
        <source>The loop that starts at action %1 has no end.</source>
        <translation>从动作 %1 开始的循环没有结束。</translation>
    </message>
    <message>
        <source>A loop over each %1 cannot be in a loop over each %2. Allowed: a loop over each page or sector in a loop over each die.</source>
        <translation>“%1”循环不能在“%2”循环中。允许：“die”循环中的“page”或“sector”循环。</translation>
    </message>
    <message>
        <source>The end of a loop has no start before it.</source>
        <translation>循环结束之前没有开始。</translation>
    </message>
    <message>
        <source>The end of a loop over each %1 closes a loop over each %2.</source>
        <translation>“%1”循环的结束关闭了“%2”循环。</translation>
    </message>
    <message>
        <source>The loop over each %1 has no %2 action to determine its step size.</source>
        <translation>“%1”循环中没有决定步长的“%2”动作。</translation>
    </message>
    <message>
        <source>One of several erases in a loop has a fixed address. Allowed: loop or die.</source>
        <translation>循环中多个擦除之一的地址是固定的。允许：loop 或 die。</translation>
    </message>
    <message>
        <source>The loop has page sizes of %1 and of %2. Allowed: one page size in a loop.</source>
        <translation>循环中有 %1 和 %2 两种页大小。允许：一个循环一种页大小。</translation>
    </message>
    <message>
        <source>The erase sizes %1 and %2 do not go together in one loop. Allowed: sizes of which each divides every larger one.</source>
        <translation>擦除大小 %1 和 %2 不能在同一循环中。允许：每个大小都能整除所有更大的大小。</translation>
    </message>
    <message>
        <source>The value &quot;loop&quot; is outside any loop.</source>
        <translation>值“loop”在所有循环之外。</translation>
    </message>
    <message>
        <source>The value &quot;die&quot; is outside a loop over each die.</source>
        <translation>值“die”在“die”循环之外。</translation>
    </message>
    <message>
        <source>The action has %1 address bytes, an earlier one has %2. Allowed: the same number in all actions of a flow.</source>
        <translation>此动作有 %1 个地址字节，之前的动作有 %2 个。允许：一个流程的所有动作使用相同的字节数。</translation>
    </message>
    <message>
        <source>The flows cannot be read.</source>
        <translation>无法读取流程。</translation>
    </message>
    <message>
        <source>The device and its template need different names: both are called %1.</source>
        <translation>器件与其模板需要不同的名称：两者都叫 %1。</translation>
    </message>
    <message>
        <source>There is no family %1. Allowed: %2 to %3.</source>
        <translation>没有系列 %1。允许：%2 到 %3。</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no flash devices.</source>
        <translation>配置模式 %1 没有闪存器件。</translation>
    </message>
    <message>
        <source>The %1 %2 is not a usual one. Usual: %3.</source>
        <translation>“%1”的值 %2 不常用。常用：%3。</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no flows: the dialog drops them.</source>
        <translation>此配置模式的器件没有流程：对话框会将其丢弃。</translation>
    </message>
    <message>
        <source>There are no flows.</source>
        <translation>没有流程。</translation>
    </message>
    <message>
        <source>There are no flows for this configuration mode.</source>
        <translation>没有用于此配置模式的流程。</translation>
    </message>
    <message>
        <source>The value is missing: %1 is stored.</source>
        <translation>缺少值：将保存 %1。</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no such value: the dialog drops it.</source>
        <translation>此配置模式的器件没有此值：对话框会将其丢弃。</translation>
    </message>
    <message>
        <source>The copy in %1 cannot be compared: %2</source>
        <translation>无法比较 %1 中的副本：%2</translation>
    </message>
    <message>
        <source>The copy in %1 is not the same as %2.</source>
        <translation>%1 中的副本与 %2 不相同。</translation>
    </message>
    <message>
        <source>There is nothing to copy in %1.</source>
        <translation>%1 中没有可复制的内容。</translation>
    </message>
    <message>
        <source>an unknown day</source>
        <translation>未知日期</translation>
    </message>
    <message>
        <source>an unknown user</source>
        <translation>未知用户</translation>
    </message>
    <message>
        <source>The stored template %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>在此处查找已保存模板 %1 之后，%2 保存了它（%3）。</translation>
    </message>
    <message>
        <source>The device %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>在此处查找器件 %1 之后，%2 保存了它（%3）。</translation>
    </message>
    <message>
        <source>The stored template %1 was changed by %2 on %3 since it was read here.</source>
        <translation>在此处读取已保存模板 %1 之后，%2 更改了它（%3）。</translation>
    </message>
    <message>
        <source>The device %1 was changed by %2 on %3 since it was read here.</source>
        <translation>在此处读取器件 %1 之后，%2 更改了它（%3）。</translation>
    </message>
    <message>
        <source>The stored template %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>在此处读取已保存模板 %1 之后，%2 删除了它（%3）。</translation>
    </message>
    <message>
        <source>The device %1 was renamed by %2 on %3 since it was read here.</source>
        <translation>在此处读取器件 %1 之后，%2 重命名了它（%3）。</translation>
    </message>
    <message>
        <source>The device %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>在此处读取器件 %1 之后，%2 删除了它（%3）。</translation>
    </message>
    <message>
        <source>Try again to store it as a new one.</source>
        <translation>请重试，以将其作为新记录保存。</translation>
    </message>
    <message>
        <source>Look at it again, or try again: then that state goes into the history.</source>
        <translation>请重新查看，或重试：届时该状态会进入历史记录。</translation>
    </message>
    <message>
        <source>The database in %1 is not empty.</source>
        <translation>%1 中的数据库不为空。</translation>
    </message>
    <message>
        <source>A stored template called %1 already exists.</source>
        <translation>已有名为 %1 的已保存模板。</translation>
    </message>
    <message>
        <source>A device called %1 already exists.</source>
        <translation>已有名为 %1 的器件。</translation>
    </message>
    <message>
        <source>There is no state %1 in the history.</source>
        <translation>历史记录中没有状态 %1。</translation>
    </message>
    <message>
        <source>The database in %1 is another one now.</source>
        <translation>%1 中的数据库已是另一个数据库。</translation>
    </message>
    <message>
        <source>It is state %1 of the history.</source>
        <translation>它是历史记录中的状态 %1。</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is a link or not a regular file. Remove it if you did not put it there.</source>
        <translation>未使用数据库 %1：%2 是链接或不是普通文件。如果不是您放置的，请将其删除。</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program, and would change it. Close the database in that program. If the file is still there then, move it to another directory.</source>
        <translation>未使用数据库 %1：%2 由其他程序写入，会更改数据库。请在该程序中关闭数据库。如果文件仍在，请将其移到其他目录。</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program for several databases at once, and names a file that would be removed. Open the database in that program, or move the file to another directory.</source>
        <translation>未使用数据库 %1：%2 由其他程序为多个数据库同时写入，并指向一个会被删除的文件。请在该程序中打开数据库，或将文件移到其他目录。</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is the journal of another database, or of another state of this one, and would damage it. Move that file to another directory, then try again.</source>
        <translation>未使用数据库 %1：%2 是其他数据库或此数据库其他状态的日志，会损坏它。请将该文件移到其他目录，然后重试。</translation>
    </message>
    <message>
        <source>The database %1 is locked by another program (%2).</source>
        <translation>数据库 %1 被其他程序锁定 (%2)。</translation>
    </message>
    <message>
        <source>The database %1 cannot be written (%2).</source>
        <translation>无法写入数据库 %1 (%2)。</translation>
    </message>
    <message>
        <source>The database %1 is damaged (%2). It is left as it is.</source>
        <translation>数据库 %1 已损坏 (%2)。将保持原样。</translation>
    </message>
    <message>
        <source>There is no room for the database %1 (%2).</source>
        <translation>没有空间用于数据库 %1 (%2)。</translation>
    </message>
    <message>
        <source>The file %1 is not a database (%2). It is left as it is.</source>
        <translation>文件 %1 不是数据库 (%2)。将保持原样。</translation>
    </message>
    <message>
        <source>The database %1 cannot be used: %2 (%3).</source>
        <translation>无法使用数据库 %1：%2 (%3)。</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is not installed.</source>
        <translation>未安装 Qt 的 SQLite 驱动程序。</translation>
    </message>
    <message>
        <source>The database %1 was left in the middle of a change by a program that ended there. It can be read again when someone who can write it has opened it once.</source>
        <translation>某个程序中途结束，使数据库 %1 停留在更改过程中。由有写入权限的人打开一次后即可再次读取。</translation>
    </message>
    <message>
        <source>The database %1 can be read, but not changed: %2.</source>
        <translation>数据库 %1 可以读取，但不能更改：%2。</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be read: %2.</source>
        <translation>无法读取数据库目录 %1：%2。</translation>
    </message>
    <message>
        <source>The database directory %1 does not exist.</source>
        <translation>数据库目录 %1 不存在。</translation>
    </message>
    <message>
        <source>The database directory %1 is not a directory: a part of it is a file.</source>
        <translation>数据库目录 %1 不是目录：其中一部分是文件。</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be reached: %2.</source>
        <translation>无法访问数据库目录 %1：%2。</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 不是文件。</translation>
    </message>
    <message>
        <source>The database %1 is empty: its content was lost. It is left as it is; restore a backup copy, or delete it to start over.</source>
        <translation>数据库 %1 为空：其内容已丢失。将保持原样；请用副本替换，或将其删除以重新开始。</translation>
    </message>
    <message>
        <source>The file %1 is not a database (too short). It is left as it is.</source>
        <translation>文件 %1 不是数据库（太短）。将保持原样。</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached: it is a link to %2 (%3). Is the drive or the share that it is on connected?</source>
        <translation>无法访问数据库 %1：它是指向 %2 的链接 (%3)。其所在的驱动器或共享是否已连接？</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached (%2). Is the drive or the share that it is on connected?</source>
        <translation>无法访问数据库 %1 (%2)。其所在的驱动器或共享是否已连接？</translation>
    </message>
    <message>
        <source>There is no database %1, but %2, which a program left that was writing it. Put the database back, or move that file to another directory to begin with an empty database.</source>
        <translation>数据库 %1 不存在，但有 %2，是正在写入它的程序遗留的。请放回数据库，或将该文件移到其他目录，以空数据库开始。</translation>
    </message>
    <message>
        <source>The database directory %1 holds no database, and none can be created: %2.</source>
        <translation>数据库目录 %1 中没有数据库，也无法创建：%2。</translation>
    </message>
    <message>
        <source>The database %1 is damaged (its end is missing). It is left as it is.</source>
        <translation>数据库 %1 已损坏（缺少末尾）。将保持原样。</translation>
    </message>
    <message>
        <source>The database %1 cannot be created: %2.</source>
        <translation>无法创建数据库 %1：%2。</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>数据库 %1 在使用期间被其他程序替换或删除。未做任何更改：请查看现有的器件，然后重试。</translation>
    </message>
    <message>
        <source>%1 Whether the change was stored cannot be read: look at the devices before you try again.</source>
        <translation>%1无法读取更改是否已保存：请先查看器件再重试。</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while a change was stored, which is lost: look at the devices that are there now, then try again.</source>
        <translation>数据库 %1 在保存更改时被其他程序替换或删除，该更改已丢失：请查看现有的器件，然后重试。</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its texts are %2, not UTF-8. It is left as it is.</source>
        <translation>数据库 %1 被其他程序改动：其文本是 %2，而不是 UTF-8。将保持原样。</translation>
    </message>
    <message>
        <source>The file %1 is a database of another program. It is left as it is.</source>
        <translation>文件 %1 是其他程序的数据库。将保持原样。</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer program (its schema is %2, this program knows up to %3). It is left as it is.</source>
        <translation>数据库 %1 由较新的程序写入（其架构为 %2，此程序最高支持 %3）。将保持原样。</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its tables are not those of schema %2. It is left as it is.</source>
        <translation>数据库 %1 被其他程序改动：其表不是架构 %2 的表。将保持原样。</translation>
    </message>
    <message>
        <source>The database in %1 is damaged: %2</source>
        <translation>%1 中的数据库已损坏：%2</translation>
    </message>
    <message>
        <source>The database server %1 did not answer in time.</source>
        <translation>数据库服务器 %1 未及时响应。</translation>
    </message>
    <message>
        <source>The database server %1 cannot be reached: %2.</source>
        <translation>无法访问数据库服务器 %1：%2。</translation>
    </message>
    <message>
        <source>The database server %1 refused: %2.</source>
        <translation>数据库服务器 %1 拒绝：%2。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 does not allow that to the login %3: its administrator can grant the role %4 or %5.</source>
        <translation>服务器 %2 上的数据库 %1 不允许登录名 %3 这样做：其管理员可以授予角色 %4 或 %5。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 has no schema %3 for devices: its administrator can make it with &quot;gfpdb server sql&quot;.</source>
        <translation>服务器 %2 上的数据库 %1 没有用于器件的架构 %3：其管理员可以用“gfpdb server sql”创建。</translation>
    </message>
    <message>
        <source>There is no room for the change on the server %1.</source>
        <translation>服务器 %1 上没有空间保存更改。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is locked by another program.</source>
        <translation>服务器 %2 上的数据库 %1 被其他程序锁定。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is changed by too many programs now: try again.</source>
        <translation>当前有太多程序正在更改服务器 %2 上的数据库 %1：请重试。</translation>
    </message>
    <message>
        <source>The directory %1 has the database %2 and names a server in %3. Move the database to another directory, and copy its records from there to the server with &quot;gfpdb copy&quot;.</source>
        <translation>目录 %1 中有数据库 %2，同时 %3 中指定了服务器。请将数据库移到其他目录，再用“gfpdb copy”将其记录复制到服务器。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 cannot be read by the login %3: its administrator can grant the role %4.</source>
        <translation>登录名 %3 无法读取服务器 %2 上的数据库 %1：其管理员可以授予角色 %4。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the server takes no changes now.</source>
        <translation>服务器 %2 上的数据库 %1 可以读取，但不能更改：服务器目前不接受更改。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the login %3 has not the role %4.</source>
        <translation>服务器 %2 上的数据库 %1 可以读取，但不能更改：登录名 %3 没有角色 %4。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by a newer program (schema %3). It is left as it is.</source>
        <translation>服务器 %2 上的数据库 %1 由较新的程序写入（架构 %3）。将保持原样。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is a database of another program. It is left as it is.</source>
        <translation>服务器 %2 上的数据库 %1 是其他程序的数据库。将保持原样。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by an older program (schema %3): it can be used when someone with the role %4 has opened it once.</source>
        <translation>服务器 %2 上的数据库 %1 由较旧的程序写入（架构 %3）：由具有角色 %4 的人打开一次后即可使用。</translation>
    </message>
    <message>
        <source>The file %1 names a server since the directory was opened: open it again.</source>
        <translation>打开目录之后，文件 %1 指定了服务器：请重新打开该目录。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>制造商</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>裸片数</translation>
    </message>
    <message>
        <source>Dies are selected by C2</source>
        <translation>用 C2 选择裸片</translation>
    </message>
    <message>
        <source>Page size (bytes)</source>
        <translation>页大小(字节)</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>地址字节数</translation>
    </message>
    <message>
        <source>4-byte addressing, enter</source>
        <translation>4 字节寻址，进入</translation>
    </message>
    <message>
        <source>4-byte addressing, leave</source>
        <translation>4 字节寻址，退出</translation>
    </message>
    <message>
        <source>4-byte addressing, register and bit</source>
        <translation>4 字节寻址，寄存器和位</translation>
    </message>
    <message>
        <source>Quad enable</source>
        <translation>四线使能</translation>
    </message>
    <message>
        <source>Unlock blocks</source>
        <translation>解锁块</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>复位</translation>
    </message>
    <message>
        <source>Busy is read by</source>
        <translation>忙状态读取</translation>
    </message>
    <message>
        <source>Dummy clocks, single</source>
        <translation>空时钟周期，单线</translation>
    </message>
    <message>
        <source>Quad read</source>
        <translation>四线读取</translation>
    </message>
    <message>
        <source>Dummy clocks, quad</source>
        <translation>空时钟周期，四线</translation>
    </message>
    <message>
        <source>Quad program</source>
        <translation>四线编程</translation>
    </message>
    <message>
        <source>Page program, longest wait (us)</source>
        <translation>页编程，最长等待 (us)</translation>
    </message>
    <message>
        <source>Erase, longest wait (ms)</source>
        <translation>擦除，最长等待 (ms)</translation>
    </message>
    <message>
        <source>from the ID</source>
        <translation>来自 ID</translation>
    </message>
    <message>
        <source>from the density</source>
        <translation>来自容量</translation>
    </message>
    <message>
        <source>assumed</source>
        <translation>假定</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>已输入</translation>
    </message>
    <message>
        <source>The command is on four lines, but the single-I/O flow has one.</source>
        <translation>此命令使用四线，但单线 I/O 流程只有一线。</translation>
    </message>
    <message>
        <source>The image is compared with a mask: its bytes with bits that the mask clears never match.</source>
        <translation>映像按掩码比较：含有被掩码清除的位的字节永远不会匹配。</translation>
    </message>
    <message>
        <source>The expected data have bits that the mask clears: they never match.</source>
        <translation>期望数据中有被掩码清除的位：永远不会匹配。</translation>
    </message>
    <message>
        <source>The mask has no bit: whatever is read matches.</source>
        <translation>掩码没有任何位：读到什么都会匹配。</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: what is beyond the end of a page overwrites its start.</source>
        <translation>页大小为 %1，但器件的页为 %2 字节：超出页尾的内容会覆盖页首。</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: programming takes longer than necessary.</source>
        <translation>页大小为 %1，但器件的页为 %2 字节：编程耗时比必要的长。</translation>
    </message>
    <message>
        <source>Data are changed in an operation that is also executed when the user asked for neither Program nor Erase.</source>
        <translation>在用户既未要求 Program 也未要求 Erase 时也会执行的操作中更改了数据。</translation>
    </message>
    <message>
        <source>Three address bytes reach %1 bytes, but the action works on %2.</source>
        <translation>三个地址字节可达 %1 字节，但此动作涉及 %2 字节。</translation>
    </message>
    <message>
        <source>The command does not have the bus width %1. Allowed: %2.</source>
        <translation>此命令没有总线宽度 %1。允许：%2。</translation>
    </message>
    <message>
        <source>This is a command that programs.</source>
        <translation>这是编程命令。</translation>
    </message>
    <message>
        <source>This is a command that reads data.</source>
        <translation>这是读取数据的命令。</translation>
    </message>
    <message>
        <source>This is a command that erases.</source>
        <translation>这是擦除命令。</translation>
    </message>
    <message>
        <source>The command has no dummy clocks.</source>
        <translation>此命令没有空时钟周期。</translation>
    </message>
    <message>
        <source>The command has two dummy clocks at least, its mode clocks.</source>
        <translation>此命令至少有两个空时钟周期，即模式时钟。</translation>
    </message>
    <message>
        <source>Nothing in the loop depends on its step: every step does the same.</source>
        <translation>循环中没有任何内容取决于步：每一步都相同。</translation>
    </message>
    <message>
        <source>The device has one die: the loop has one step.</source>
        <translation>器件只有一个裸片：循环只有一步。</translation>
    </message>
    <message>
        <source>There is no ID check: the flow changes whatever chip is connected.</source>
        <translation>没有 ID 检查：流程会更改所连接的任何芯片。</translation>
    </message>
    <message>
        <source>The chip is changed before its ID is checked.</source>
        <translation>芯片在其 ID 检查之前被更改。</translation>
    </message>
    <message>
        <source>4-byte addressing is entered here, and Termination does not leave it.</source>
        <translation>此处进入 4 字节寻址，但 Termination 未退出。</translation>
    </message>
    <message>
        <source>No command uses this write enable.</source>
        <translation>没有命令使用此写使能。</translation>
    </message>
    <message>
        <source>The chip is in deep power-down and ignores the command.</source>
        <translation>芯片处于深度掉电模式，会忽略此命令。</translation>
    </message>
    <message>
        <source>The command follows the reset that brings the chip to its end.</source>
        <translation>此命令位于使芯片进入最终状态的复位之后。</translation>
    </message>
    <message>
        <source>The command is on four lines, and nothing before it sets or checks the quad-enable bit.</source>
        <translation>此命令使用四线，但之前没有设置或检查 Quad Enable 位。</translation>
    </message>
    <message>
        <source>%1 us are waited for instead of asking whether the chip is ready.</source>
        <translation>等待 %1 µs，而不是询问芯片是否就绪。</translation>
    </message>
    <message>
        <source>Nothing waits until the chip is ready: it ignores the commands that follow.</source>
        <translation>没有等待芯片就绪：它会忽略后面的命令。</translation>
    </message>
    <message>
        <source>There is no write enable before it: the chip ignores the command.</source>
        <translation>之前没有写使能：芯片会忽略此命令。</translation>
    </message>
    <message>
        <source>The command has no address, but the action sends one.</source>
        <translation>此命令没有地址，但动作发送了地址。</translation>
    </message>
    <message>
        <source>The command has an address, but the action sends none.</source>
        <translation>此命令有地址，但动作没有发送。</translation>
    </message>
    <message>
        <source>The command always has four address bytes, but the action sends three.</source>
        <translation>此命令总有四个地址字节，但动作发送三个。</translation>
    </message>
    <message>
        <source>The action sends four address bytes, but nothing before it enters 4-byte addressing.</source>
        <translation>此动作发送四个地址字节，但之前没有进入 4 字节寻址。</translation>
    </message>
    <message>
        <source>The action sends three address bytes, but 4-byte addressing was entered before.</source>
        <translation>此动作发送三个地址字节，但之前已进入 4 字节寻址。</translation>
    </message>
    <message>
        <source>Template name</source>
        <translation>模板名称</translation>
    </message>
    <message>
        <source>Flow template</source>
        <translation>流程模板</translation>
    </message>
    <message>
        <source>an unpaired surrogate is not a character</source>
        <translation>未配对的代理项不是字符</translation>
    </message>
    <message>
        <source>the name %1 occurs twice</source>
        <translation>名称 %1 出现两次</translation>
    </message>
    <message>
        <source>values are nested too deeply</source>
        <translation>值嵌套过深</translation>
    </message>
    <message>
        <source>there is text after the end</source>
        <translation>结尾之后还有文本</translation>
    </message>
    <message>
        <source>an object needs a name in double quotes here</source>
        <translation>此处对象需要用双引号括起的名称</translation>
    </message>
    <message>
        <source>&quot;:&quot; is missing after %1</source>
        <translation>%1 之后缺少冒号</translation>
    </message>
    <message>
        <source>an object needs &quot;,&quot; or &quot;}&quot; here</source>
        <translation>此处对象需要“,”或“}”</translation>
    </message>
    <message>
        <source>a list needs &quot;,&quot; or &quot;]&quot; here</source>
        <translation>此处列表需要“,”或“]”</translation>
    </message>
    <message>
        <source>\u needs four hexadecimal digits</source>
        <translation>\u 需要四位十六进制数字</translation>
    </message>
    <message>
        <source>a string is not terminated</source>
        <translation>字符串未结束</translation>
    </message>
    <message>
        <source>there is no such escape</source>
        <translation>没有此转义序列</translation>
    </message>
    <message>
        <source>a string has a control character or a line break in it</source>
        <translation>字符串中有控制字符或换行</translation>
    </message>
    <message>
        <source>a string is not UTF-8</source>
        <translation>字符串不是 UTF-8</translation>
    </message>
    <message>
        <source>a number is too large</source>
        <translation>数字过大</translation>
    </message>
    <message>
        <source>a value was expected</source>
        <translation>应为一个值</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>A string was expected, but this is %1.</source>
        <translation>应为字符串，但此处是：%1。</translation>
    </message>
    <message>
        <source>A list was expected, but this is %1.</source>
        <translation>应为列表，但此处是：%1。</translation>
    </message>
    <message>
        <source>An object was expected, but this is %1.</source>
        <translation>应为对象，但此处是：%1。</translation>
    </message>
    <message>
        <source>%1 is not known here. Allowed: %2.</source>
        <translation>此处不能识别 %1。允许：%2。</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>缺少 %1。</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>无法读取目录 %1：%2。</translation>
    </message>
    <message>
        <source>device %1: %2</source>
        <translation>器件 %1：%2</translation>
    </message>
    <message>
        <source>stored template %1: %2</source>
        <translation>已保存的模板 %1：%2</translation>
    </message>
    <message>
        <source>The device %1 is already in %2.</source>
        <translation>器件 %1 已在 %2 中。</translation>
    </message>
    <message>
        <source>The stored template %1 is already in %2.</source>
        <translation>已保存的模板 %1 已在 %2 中。</translation>
    </message>
    <message>
        <source>The device %1 exists with different content: --replace replaces it.</source>
        <translation>器件 %1 已存在但内容不同：--replace 可将其替换。</translation>
    </message>
    <message>
        <source>The stored template %1 exists with different content: --replace replaces it.</source>
        <translation>已保存的模板 %1 已存在但内容不同：--replace 可将其替换。</translation>
    </message>
    <message>
        <source>The name of the device %1 is that of a stored template.</source>
        <translation>器件 %1 的名称是某个已保存模板的名称。</translation>
    </message>
    <message>
        <source>The name of the stored template %1 is that of a device.</source>
        <translation>已保存的模板 %1 的名称是某个器件的名称。</translation>
    </message>
    <message>
        <source>The column is missing.</source>
        <translation>缺少此列。</translation>
    </message>
    <message>
        <source>The column is not known. Allowed: %1.</source>
        <translation>未知的列。允许：%1。</translation>
    </message>
    <message>
        <source>The column occurs twice.</source>
        <translation>此列出现两次。</translation>
    </message>
    <message>
        <source>A quote that opens in this row is never closed.</source>
        <translation>此行中打开的引号没有关闭。</translation>
    </message>
    <message>
        <source>The row has 1 cell, the line of column names has %1.</source>
        <translation>此行有 1 个单元格，列名行有 %1 个。</translation>
    </message>
    <message>
        <source>The row has %1 cells, the line of column names has %2.</source>
        <translation>此行有 %1 个单元格，列名行有 %2 个。</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>无法读取文件：%1。</translation>
    </message>
    <message>
        <source>This is not valid JSON: %1.</source>
        <translation>不是有效的 JSON：%1。</translation>
    </message>
    <message>
        <source>This is not a file of records. Allowed: %1.</source>
        <translation>这不是记录文件。允许：%1。</translation>
    </message>
    <message>
        <source>This version of the format is not known. Allowed: %1.</source>
        <translation>未知的格式版本。允许：%1。</translation>
    </message>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>文本不是 UTF-8。</translation>
    </message>
    <message>
        <source>A whole number or null was expected, but this is %1.</source>
        <translation>应为整数或 null，但此处是：%1。</translation>
    </message>
    <message>
        <source>device family</source>
        <translation>器件系列</translation>
    </message>
    <message>
        <source>configuration mode</source>
        <translation>配置模式</translation>
    </message>
    <message>
        <source>single-I/O flow</source>
        <translation>单线 I/O 流程</translation>
    </message>
    <message>
        <source>quad-I/O flow</source>
        <translation>四线 I/O 流程</translation>
    </message>
    <message>
        <source>This operation occurs twice.</source>
        <translation>此操作出现两次。</translation>
    </message>
    <message>
        <source>There is no such operation. Allowed: %1.</source>
        <translation>没有此操作。允许：%1。</translation>
    </message>
    <message>
        <source>There is no such action. Allowed: %1.</source>
        <translation>没有此动作。允许：%1。</translation>
    </message>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>无法读取 %1 的流程。</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: the copy gets these, and its flow has the %2 of %3.</source>
        <translation>器件最多有 %1 个单线 I/O 空时钟周期：副本采用此值，其流程仍为 %3 的 %2 个。</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no serial flash devices.</source>
        <translation>配置模式 %1 没有串行闪存器件。</translation>
    </message>
    <message>
        <source>page size</source>
        <translation>页大小</translation>
    </message>
    <message>
        <source>quad-I/O dummy clocks</source>
        <translation>四线 I/O 空时钟周期</translation>
    </message>
    <message>
        <source>%1: %2 in the list, %3 by %4</source>
        <translation>%1：列表中为 %2，%4 中为 %3</translation>
    </message>
    <message>
        <source>address bytes</source>
        <translation>地址字节数</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 或 %2</translation>
    </message>
    <message>
        <source>erase by %1</source>
        <translation>用 %1 擦除</translation>
    </message>
    <message>
        <source>not</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 字节</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>quad enable</source>
        <translation>四线使能</translation>
    </message>
    <message>
        <source>basic table: %1 double words in read-outs of this part, %2 here</source>
        <translation>基本表：此型号的读出数据有 %1 个双字，此处有 %2 个</translation>
    </message>
    <message>
        <source>4-4-4 read: in read-outs of this part, but not here</source>
        <translation>4-4-4 读取：此型号的读出数据中有，此处没有</translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 不是数字。</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3 are allowed.</source>
        <translation>%1 超出范围：允许 %2 到 %3。</translation>
    </message>
    <message>
        <source>%1 is more than 32Gb.</source>
        <translation>%1 大于 32Gb。</translation>
    </message>
    <message>
        <source>%1 is not a density such as 128Mb.</source>
        <translation>%1 不是像 128Mb 这样的容量。</translation>
    </message>
    <message>
        <source>%1 is neither an erase command such as %2 nor %3.</source>
        <translation>%1 既不是像 %2 这样的擦除命令，也不是%3。</translation>
    </message>
    <message>
        <source>%1 is not a power of two.</source>
        <translation>%1 不是 2 的幂。</translation>
    </message>
    <message>
        <source>There is no value %1.</source>
        <translation>没有值 %1。</translation>
    </message>
    <message>
        <source>The value %1 is missing: enter it.</source>
        <translation>缺少值 %1：请输入。</translation>
    </message>
    <message>
        <source>The number of dies, %1, does not divide the density.</source>
        <translation>裸片数 %1 不能整除容量。</translation>
    </message>
    <message>
        <source>The erase command %1 does not divide the density.</source>
        <translation>擦除命令 %1 不能整除容量。</translation>
    </message>
    <message>
        <source>The density %1 (%2) is not what the ID usually stands for, which is %3.</source>
        <translation>容量 %1（%2）与该 ID 通常表示的 %3 不符。</translation>
    </message>
    <message>
        <source>SFDP DW2 says a density that no device can have: %1.</source>
        <translation>SFDP DW2 给出的容量任何器件都不可能有：%1。</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: it gets these, and its flow has %2.</source>
        <translation>器件最多有 %1 个单线 I/O 空时钟周期：采用此值，其流程为 %2 个。</translation>
    </message>
    <message>
        <source>The chip has a table of the maker %1, and its ID is of the maker %2.</source>
        <translation>芯片有制造商 %1 的表，而其 ID 属于制造商 %2。</translation>
    </message>
    <message>
        <source>No listed part tells what the maker&apos;s parts have in common: usual commands are assumed.</source>
        <translation>列表中没有型号能说明该制造商型号的共同点：假定采用常用命令。</translation>
    </message>
    <message>
        <source>Several listed parts have this ID: %1.</source>
        <translation>多个已列型号具有此 ID：%1。</translation>
    </message>
    <message>
        <source>The commands have four address bytes, and nothing enters 4-byte addressing.</source>
        <translation>命令有四个地址字节，但没有进入 4 字节寻址的方式。</translation>
    </message>
    <message>
        <source>The commands have three address bytes, and the device is in 4-byte addressing.</source>
        <translation>命令有三个地址字节，而器件处于 4 字节寻址。</translation>
    </message>
    <message>
        <source>Three address bytes do not reach all of %1.</source>
        <translation>三个地址字节无法访问全部 %1。</translation>
    </message>
    <message>
        <source>SFDP DW1 lists three address bytes alone, which do not reach all of %1: four are taken.</source>
        <translation>SFDP DW1 只列出三个地址字节，无法访问全部 %1：采用四个。</translation>
    </message>
    <message>
        <source>SFDP DW16 lists every way into 4-byte addressing, and SFDP DW1 three address bytes: DW16 is ignored.</source>
        <translation>SFDP DW16 列出所有进入 4 字节寻址的方式，而 SFDP DW1 为三个地址字节：忽略 DW16。</translation>
    </message>
    <message>
        <source>SFDP DW16 lists no way into 4-byte addressing that a flow can take: %1 is taken.</source>
        <translation>SFDP DW16 未列出流程可用的进入 4 字节寻址的方式：采用 %1。</translation>
    </message>
    <message>
        <source>SFDP has no page size: %1 is taken (%2).</source>
        <translation>SFDP 没有页大小：采用 %1（%2）。</translation>
    </message>
    <message>
        <source>SFDP DW11 has a page size that no flow can have: %1 is taken (%2).</source>
        <translation>SFDP DW11 的页大小任何流程都不能使用：采用 %1（%2）。</translation>
    </message>
    <message>
        <source>SFDP DW15 says with a reserved value how quad is enabled: look it up and enter it.</source>
        <translation>SFDP DW15 用保留值表示四线使能方式：请查阅后输入。</translation>
    </message>
    <message>
        <source>SFDP does not say how quad is enabled: %1 is taken (%2).</source>
        <translation>SFDP 未说明四线使能方式：采用 %1（%2）。</translation>
    </message>
    <message>
        <source>SFDP lists no read on four lines: the quad-I/O flow uses one.</source>
        <translation>SFDP 未列出四线读取：四线 I/O 流程会使用它。</translation>
    </message>
    <message>
        <source>No erase command serves the whole part: the chip is erased at once.</source>
        <translation>没有适用于整个型号的擦除命令：将一次擦除整个芯片。</translation>
    </message>
    <message>
        <source>The four bytes of each double word are in reverse order.</source>
        <translation>每个双字的四个字节顺序相反。</translation>
    </message>
    <message>
        <source>The bytes do not begin with the signature &quot;SFDP&quot;.</source>
        <translation>字节不以签名“SFDP”开头。</translation>
    </message>
    <message>
        <source>The signature &quot;SFDP&quot; is at %1 and not at the start: bytes were added before it.</source>
        <translation>签名“SFDP”在 %1 处而不在开头：其前面加入了字节。</translation>
    </message>
    <message>
        <source>The read-out ends within the SFDP header.</source>
        <translation>读出数据在 SFDP 头内结束。</translation>
    </message>
    <message>
        <source>SFDP revision %1 is unknown: revisions 1.x can be read.</source>
        <translation>未知的 SFDP 修订版 %1：可读取修订版 1.x。</translation>
    </message>
    <message>
        <source>%1 has the unknown revision %2: it is not read.</source>
        <translation>%1的修订版 %2 未知：不读取。</translation>
    </message>
    <message>
        <source>There are %1 headers of %2: the one of revision %3 is taken.</source>
        <translation>%2有 %1 个头：采用修订版 %3 的头。</translation>
    </message>
    <message>
        <source>The read-out ends within the parameter headers: %1 of %2 are there.</source>
        <translation>读出数据在参数头内结束：%2 个中有 %1 个。</translation>
    </message>
    <message>
        <source>A table begins at %1: there is room for %2 parameter headers, not for %3.</source>
        <translation>有一个表从 %1 开始：只能容纳 %2 个参数头，而不是 %3 个。</translation>
    </message>
    <message>
        <source>The parameter header at %1 is blank.</source>
        <translation>%1 处的参数头为空。</translation>
    </message>
    <message>
        <source>%1 begins at %2, within the headers: it is not read.</source>
        <translation>%1从头内的 %2 开始：不读取。</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1为空。</translation>
    </message>
    <message>
        <source>%1 is not in the read-out: it begins at %2, and the read-out ends at %3.</source>
        <translation>%1不在读出数据中：它从 %2 开始，而数据在 %3 结束。</translation>
    </message>
    <message>
        <source>The read-out ends within %1: %2 of %3 double words are there.</source>
        <translation>读出数据在%1内结束：%3 个双字中有 %2 个。</translation>
    </message>
    <message>
        <source>%1 begins at %2, which is not a multiple of 4.</source>
        <translation>%1从 %2 开始，它不是 4 的倍数。</translation>
    </message>
    <message>
        <source>%1 and %2 overlap.</source>
        <translation>%1与%2重叠。</translation>
    </message>
    <message>
        <source>The bytes at %1 are in no table: they are not read.</source>
        <translation>%1 处的字节不在任何表中：不读取。</translation>
    </message>
    <message>
        <source>There is no basic table.</source>
        <translation>没有基本表。</translation>
    </message>
    <message>
        <source>The basic table is blank.</source>
        <translation>基本表为空。</translation>
    </message>
    <message>
        <source>The basic table has %1 double words: %2 belong to its revision %3.</source>
        <translation>基本表有 %1 个双字：修订版 %3 应有 %2 个。</translation>
    </message>
    <message>
        <source>SFDP DW%1 has zeros where every part has ones: bytes may be missing or shifted.</source>
        <translation>SFDP DW%1 中所有型号都为 1 的位是 0：字节可能缺失或移位。</translation>
    </message>
    <message>
        <source>SFDP DW2 says no density that a part can have: %1.</source>
        <translation>SFDP DW2 给出的不是型号可能有的容量：%1。</translation>
    </message>
    <message>
        <source>SFDP DW1 says with a reserved value how many address bytes there are.</source>
        <translation>SFDP DW1 用保留值表示地址字节数。</translation>
    </message>
    <message>
        <source>SFDP DW%1 lists the %2 read, and DW%3 has no command for it.</source>
        <translation>SFDP DW%1 列出 %2 读取，而 DW%3 没有其命令。</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 has no command: it is left out.</source>
        <translation>SFDP DW%1：擦除类型 %2 没有命令：将其略去。</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 erases 2^%3 bytes, which is too much: it is left out.</source>
        <translation>SFDP DW%1：擦除类型 %2 擦除 2^%3 字节，过大：将其略去。</translation>
    </message>
    <message>
        <source>SFDP DW1 erases 4 KiB by %1, which no erase type does.</source>
        <translation>SFDP DW1 用 %1 擦除 4 KiB，而没有擦除类型这样做。</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions is blank.</source>
        <translation>4 字节指令表为空。</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions has no erase commands.</source>
        <translation>4 字节指令表没有擦除命令。</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1, which the basic table does not have.</source>
        <translation>4 字节指令表列出擦除类型 %1，而基本表没有。</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1 and has no command for it.</source>
        <translation>4 字节指令表列出擦除类型 %1，但没有其命令。</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 come to %2 bytes, and the part has %3.</source>
        <translation>扇区映射 %1 的扇区共 %2 字节，而型号有 %3 字节。</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 are erased by types that the basic table does not have.</source>
        <translation>扇区映射 %1 的扇区使用基本表没有的类型擦除。</translation>
    </message>
    <message>
        <source>The sector map has no end.</source>
        <translation>扇区映射没有结尾。</translation>
    </message>
    <message>
        <source>the basic table</source>
        <translation>基本表</translation>
    </message>
    <message>
        <source>the sector map</source>
        <translation>扇区映射</translation>
    </message>
    <message>
        <source>the table of 4-byte instructions</source>
        <translation>4 字节指令表</translation>
    </message>
    <message>
        <source>the table %1</source>
        <translation>表 %1</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was replaced by another one while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>服务器 %2 上的数据库 %1 在使用期间被另一个数据库替换。未作任何更改：请查看现有器件，然后重试。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is another one now.</source>
        <translation>服务器 %2 上的数据库 %1 现在是另一个数据库。</translation>
    </message>
    <message>
        <source>the certificates %1 are not a file</source>
        <translation>证书 %1 不是文件</translation>
    </message>
    <message>
        <source>no reason</source>
        <translation>无原因</translation>
    </message>
    <message>
        <source>the connection is closed</source>
        <translation>连接已关闭</translation>
    </message>
    <message>
        <source>The server does not copy.</source>
        <translation>服务器不进行复制。</translation>
    </message>
    <message>
        <source>%1 is not a setting</source>
        <translation>%1 不是设置</translation>
    </message>
    <message>
        <source>passwords do not belong into it: put them into the file .pgpass in your home directory</source>
        <translation>密码不应放在其中：请放入主目录中的文件 .pgpass</translation>
    </message>
    <message>
        <source>%1 is not a setting. There are: %2</source>
        <translation>%1 不是设置。可用设置：%2</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 出现两次</translation>
    </message>
    <message>
        <source>%1 cannot be %2</source>
        <translation>%1 不能为 %2</translation>
    </message>
    <message>
        <source>it does not begin with %1</source>
        <translation>它不以 %1 开头</translation>
    </message>
    <message>
        <source>it has no settings</source>
        <translation>它没有设置</translation>
    </message>
    <message>
        <source>it names too many hosts</source>
        <translation>主机过多</translation>
    </message>
    <message>
        <source>&quot;port&quot; must be one for all hosts, or one for each</source>
        <translation>“port”必须是所有主机共用一个，或每个主机一个</translation>
    </message>
    <message>
        <source>it does not say which &quot;database&quot; is meant</source>
        <translation>未指定是哪个“database”</translation>
    </message>
    <message>
        <source>The settings of the server cannot be used: %1.</source>
        <translation>无法使用服务器的设置：%1。</translation>
    </message>
    <message>
        <source>The file %1 cannot be used: %2.</source>
        <translation>无法使用文件 %1：%2。</translation>
    </message>
    <message>
        <source>The directory has the database %1: name the server in another directory, and copy the records there with &quot;gfpdb copy&quot;.</source>
        <translation>该目录有数据库 %1：请在另一目录中指定服务器，并用“gfpdb copy”将记录复制到那里。</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>无法写入文件 %1：%2。</translation>
    </message>
    <message>
        <source>The database cannot keep %1 of %2: it is not a text in UTF-8, or has the character NUL.</source>
        <translation>数据库无法保存 %2 的 %1：它不是 UTF-8 文本，或含有 NUL 字符。</translation>
    </message>
    <message>
        <source>The device %1 is being changed by another program: try again.</source>
        <translation>器件 %1 正被其他程序更改：请重试。</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>导入已取消。</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>它不是普通文件</translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>它大于 %1</translation>
    </message>
    <message>
        <source>The command is on four lines, and a write of the status registers before it clears the quad-enable bit.</source>
        <translation>此命令使用四线，但之前对状态寄存器的写入清除了 Quad Enable 位。</translation>
    </message>
</context>
</TS>
