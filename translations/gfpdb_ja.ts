<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>GFPC_CHARTS</name>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>%1 のフローを読み込めません。</translation>
    </message>
    <message>
        <source>%1 has no quad-I/O flow.</source>
        <translation>%1 にはクアッド I/O のフローがありません。</translation>
    </message>
    <message>
        <source>%1 has no single-I/O flow.</source>
        <translation>%1 にはシングル I/O のフローがありません。</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1 / %2 ページ</translation>
    </message>
    <message>
        <source>There are no fonts on this computer.</source>
        <translation>このコンピューターにはフォントがありません。</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>クアッド I/O のフロー</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>シングル I/O のフロー</translation>
    </message>
</context>
<context>
    <name>gfpdb</name>
    <message>
        <source>Upper and lower case count as the same.</source>
        <translation>大文字と小文字は区別されません。</translation>
    </message>
    <message>
        <source>There is a built-in device called %1: choose another name.</source>
        <translation>%1 という組み込みデバイスがあります: 別の名前を選んでください。</translation>
    </message>
    <message>
        <source>There is a built-in template called %1: choose another name.</source>
        <translation>%1 という組み込みテンプレートがあります: 別の名前を選んでください。</translation>
    </message>
    <message>
        <source>part name</source>
        <translation>部品名</translation>
    </message>
    <message>
        <source>The device %1 is neither deleted nor replaced, because it could not be read when it was last looked for: %2</source>
        <translation>デバイス %1 は前回の検索時に読み込めなかったため、削除も置き換えもされません: %2</translation>
    </message>
    <message>
        <source>The flows of %1 in %2 cannot be read.</source>
        <translation>%2 の %1 のフローを読み込めません。</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a number.</source>
        <translation>デバイスのプロパティ %1 は数値ではありません。</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a text.</source>
        <translation>デバイスのプロパティ %1 はテキストではありません。</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name.</source>
        <translation>%1 という保存済みのテンプレートがあります: 別の名前を選んでください。</translation>
    </message>
    <message>
        <source>There is a device called %1: it is the one that is shown. Enter another name to rename it.</source>
        <translation>%1 というデバイスがあります: 表示中のデバイスです。名前を変えるには別の名前を入力してください。</translation>
    </message>
    <message>
        <source>There is a device called %1 for this family and configuration mode: choose another name.</source>
        <translation>このファミリーとコンフィギュレーションモードには %1 というデバイスがあります: 別の名前を選んでください。</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name, or remove that template first.</source>
        <translation>%1 という保存済みのテンプレートがあります: 別の名前を選ぶか、先にそのテンプレートを削除してください。</translation>
    </message>
    <message>
        <source>The template name %1 differs from the device name %2 in case only: choose another name.</source>
        <translation>テンプレート名 %1 とデバイス名 %2 は大文字と小文字が違うだけです: 別の名前を選んでください。</translation>
    </message>
    <message>
        <source>There is a device called %1: choose another name.</source>
        <translation>%1 というデバイスがあります: 別の名前を選んでください。</translation>
    </message>
    <message>
        <source>A flash device with an I/O voltage of %1 cannot be connected to %2 devices: it must support 1.8 V.</source>
        <translation>I/O 電圧が %1 のフラッシュデバイスは %2 デバイスに接続できません: 1.8 V に対応している必要があります。</translation>
    </message>
    <message>
        <source>%1 The device %2 that was deleted before was not put back: %3</source>
        <translation>%1 先に削除されたデバイス %2 は元に戻されませんでした: %3</translation>
    </message>
    <message>
        <source>There is no record to save.</source>
        <translation>保存するレコードがありません。</translation>
    </message>
    <message>
        <source>The configuration mode has no flash devices.</source>
        <translation>このコンフィギュレーションモードにはフラッシュデバイスがありません。</translation>
    </message>
    <message>
        <source>The device %1 contains text that is not valid UTF-8.</source>
        <translation>デバイス %1 に有効な UTF-8 でないテキストがあります。</translation>
    </message>
    <message>
        <source>The template %1 is built in: it cannot be removed.</source>
        <translation>テンプレート %1 は組み込みのため削除できません。</translation>
    </message>
    <message>
        <source>device name</source>
        <translation>デバイス名</translation>
    </message>
    <message>
        <source>device ID</source>
        <translation>デバイス ID</translation>
    </message>
    <message>
        <source>I/O voltage</source>
        <translation>デバイス I/O 電圧</translation>
    </message>
    <message>
        <source>density</source>
        <translation>デバイス容量</translation>
    </message>
    <message>
        <source>total die count</source>
        <translation>ダイの総数</translation>
    </message>
    <message>
        <source>number of single-I/O dummy clocks</source>
        <translation>シングル I/O モードのダミーサイクル数</translation>
    </message>
    <message>
        <source>number of quad-I/O dummy clocks</source>
        <translation>クアッド I/O モードのダミーサイクル数</translation>
    </message>
    <message>
        <source>template name</source>
        <translation>テンプレート名</translation>
    </message>
    <message>
        <source>flow template</source>
        <translation>プログラミングフローのテンプレート</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>%1 から %2 までの整数</translation>
    </message>
    <message>
        <source>one byte in hexadecimal, such as 0x9F</source>
        <translation>0x9F のような 16 進の 1 バイト</translation>
    </message>
    <message>
        <source>1 to %1 bytes in hexadecimal separated by single spaces, such as 0x00 0x02</source>
        <translation>0x00 0x02 のように空白 1 つで区切った 1 ～ %1 バイトの 16 進数</translation>
    </message>
    <message>
        <source>an address of eight hexadecimal digits, such as 0x00010000</source>
        <translation>0x00010000 のような 16 進 8 桁のアドレス</translation>
    </message>
    <message>
        <source>%1, or %2</source>
        <translation>%1、または %2</translation>
    </message>
    <message>
        <source>text of 1 to %1 characters on one line</source>
        <translation>1 行で 1 ～ %1 文字のテキスト</translation>
    </message>
    <message>
        <source>a power of two from 1 to %1</source>
        <translation>1 から %1 までの 2 のべき乗</translation>
    </message>
    <message>
        <source>Loop marker</source>
        <translation>ループマーカー</translation>
    </message>
    <message>
        <source>There is no action property with the number %1. Allowed: 0 to %2.</source>
        <translation>番号 %1 のアクションプロパティはありません。許容: 0 ～ %2。</translation>
    </message>
    <message>
        <source>An empty value</source>
        <translation>空の値</translation>
    </message>
    <message>
        <source>%1 is not allowed for &quot;%2&quot;. Allowed: %3.</source>
        <translation>%1 は「%2」に使えません。許容: %3。</translation>
    </message>
    <message>
        <source>The %1 is empty: 1 to %2 characters are allowed.</source>
        <translation>「%1」が空です: 1 ～ %2 文字を使えます。</translation>
    </message>
    <message>
        <source>The %1 has characters that cannot be stored.</source>
        <translation>「%1」に保存できない文字があります。</translation>
    </message>
    <message>
        <source>The %1 has %2 characters: 1 to %3 characters are allowed.</source>
        <translation>「%1」は %2 文字です: 1 ～ %3 文字を使えます。</translation>
    </message>
    <message>
        <source>The %1 has a line break or another control character: use letters, digits, punctuation and spaces.</source>
        <translation>「%1」に改行などの制御文字があります: 文字、数字、記号、空白を使ってください。</translation>
    </message>
    <message>
        <source>The %1 %2 begins or ends with a space: remove it.</source>
        <translation>「%1」%2 の先頭または末尾に空白があります: 削除してください。</translation>
    </message>
    <message>
        <source>The %1 %2 is reserved for a new device: choose another.</source>
        <translation>「%1」%2 は新しいデバイス用に予約されています: 別の名前を選んでください。</translation>
    </message>
    <message>
        <source>%1 Enter 1 to %2 bytes in hexadecimal, separated by spaces or commas, for example 0xC2 0x20 0x19.</source>
        <translation>%1 0xC2 0x20 0x19 のように、空白またはコンマで区切った 1 ～ %2 バイトの 16 進数を入力してください。</translation>
    </message>
    <message>
        <source>The device ID is empty.</source>
        <translation>デバイス ID が空です。</translation>
    </message>
    <message>
        <source>%1 is not a byte of a device ID.</source>
        <translation>%1 はデバイス ID のバイトではありません。</translation>
    </message>
    <message>
        <source>The device ID has %1 bytes.</source>
        <translation>デバイス ID は %1 バイトです。</translation>
    </message>
    <message>
        <source>The %1 %2 is out of range: %3 to %4 are allowed.</source>
        <translation>「%1」の %2 は範囲外です: %3 ～ %4 を使えます。</translation>
    </message>
    <message>
        <source>The %1 %2 is not known: choose one of %3.</source>
        <translation>「%1」の %2 は不明です: %3 から選んでください。</translation>
    </message>
    <message>
        <source>The loop that starts at action %1 has no end.</source>
        <translation>アクション %1 で始まるループに終わりがありません。</translation>
    </message>
    <message>
        <source>A loop over each %1 cannot be in a loop over each %2. Allowed: a loop over each page or sector in a loop over each die.</source>
        <translation>「%1」ごとのループは「%2」ごとのループの中に置けません。許容: 「die」ごとのループの中の「page」または「sector」ごとのループ。</translation>
    </message>
    <message>
        <source>The end of a loop has no start before it.</source>
        <translation>ループの終わりの前に始まりがありません。</translation>
    </message>
    <message>
        <source>The end of a loop over each %1 closes a loop over each %2.</source>
        <translation>「%1」ごとのループの終わりが「%2」ごとのループを閉じています。</translation>
    </message>
    <message>
        <source>The loop over each %1 has no %2 action to determine its step size.</source>
        <translation>「%1」ごとのループに、刻み幅を決める「%2」アクションがありません。</translation>
    </message>
    <message>
        <source>One of several erases in a loop has a fixed address. Allowed: loop or die.</source>
        <translation>ループ内の複数の消去の 1 つのアドレスが固定です。許容: loop または die。</translation>
    </message>
    <message>
        <source>The loop has page sizes of %1 and of %2. Allowed: one page size in a loop.</source>
        <translation>ループにページサイズ %1 と %2 があります。許容: 1 つのループに 1 つのページサイズ。</translation>
    </message>
    <message>
        <source>The erase sizes %1 and %2 do not go together in one loop. Allowed: sizes of which each divides every larger one.</source>
        <translation>消去サイズ %1 と %2 は 1 つのループに置けません。許容: 各サイズがそれより大きいすべてのサイズを割り切ること。</translation>
    </message>
    <message>
        <source>The value &quot;loop&quot; is outside any loop.</source>
        <translation>値「loop」がループの外にあります。</translation>
    </message>
    <message>
        <source>The value &quot;die&quot; is outside a loop over each die.</source>
        <translation>値「die」が「die」ごとのループの外にあります。</translation>
    </message>
    <message>
        <source>The action has %1 address bytes, an earlier one has %2. Allowed: the same number in all actions of a flow.</source>
        <translation>このアクションのアドレスは %1 バイト、前のアクションは %2 バイトです。許容: フローの全アクションで同じ数。</translation>
    </message>
    <message>
        <source>The flows cannot be read.</source>
        <translation>フローを読み込めません。</translation>
    </message>
    <message>
        <source>The device and its template need different names: both are called %1.</source>
        <translation>デバイスとそのテンプレートには別々の名前が必要です: どちらも %1 です。</translation>
    </message>
    <message>
        <source>There is no family %1. Allowed: %2 to %3.</source>
        <translation>ファミリー %1 はありません。許容: %2 ～ %3。</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no flash devices.</source>
        <translation>コンフィギュレーションモード %1 にはフラッシュデバイスがありません。</translation>
    </message>
    <message>
        <source>The %1 %2 is not a usual one. Usual: %3.</source>
        <translation>「%1」の %2 は一般的な値ではありません。一般的な値: %3。</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no flows: the dialog drops them.</source>
        <translation>このコンフィギュレーションモードのデバイスにはフローがありません: ダイアログで破棄されます。</translation>
    </message>
    <message>
        <source>There are no flows.</source>
        <translation>フローがありません。</translation>
    </message>
    <message>
        <source>There are no flows for this configuration mode.</source>
        <translation>このコンフィギュレーションモードのフローがありません。</translation>
    </message>
    <message>
        <source>The value is missing: %1 is stored.</source>
        <translation>値がありません: %1 が保存されます。</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no such value: the dialog drops it.</source>
        <translation>このコンフィギュレーションモードのデバイスにこの値はありません: ダイアログで破棄されます。</translation>
    </message>
    <message>
        <source>The copy in %1 cannot be compared: %2</source>
        <translation>%1 のコピーを比較できません: %2</translation>
    </message>
    <message>
        <source>The copy in %1 is not the same as %2.</source>
        <translation>%1 のコピーは %2 と同じではありません。</translation>
    </message>
    <message>
        <source>There is nothing to copy in %1.</source>
        <translation>%1 にはコピーするものがありません。</translation>
    </message>
    <message>
        <source>an unknown day</source>
        <translation>不明な日</translation>
    </message>
    <message>
        <source>an unknown user</source>
        <translation>不明なユーザー</translation>
    </message>
    <message>
        <source>The stored template %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>保存済みのテンプレート %1 は、ここで検索された後に %2 によって保存されました (%3)。</translation>
    </message>
    <message>
        <source>The device %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>デバイス %1 は、ここで検索された後に %2 によって保存されました (%3)。</translation>
    </message>
    <message>
        <source>The stored template %1 was changed by %2 on %3 since it was read here.</source>
        <translation>保存済みのテンプレート %1 は、ここで読み込まれた後に %2 によって変更されました (%3)。</translation>
    </message>
    <message>
        <source>The device %1 was changed by %2 on %3 since it was read here.</source>
        <translation>デバイス %1 は、ここで読み込まれた後に %2 によって変更されました (%3)。</translation>
    </message>
    <message>
        <source>The stored template %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>保存済みのテンプレート %1 は、ここで読み込まれた後に %2 によって削除されました (%3)。</translation>
    </message>
    <message>
        <source>The device %1 was renamed by %2 on %3 since it was read here.</source>
        <translation>デバイス %1 は、ここで読み込まれた後に %2 によって名前が変更されました (%3)。</translation>
    </message>
    <message>
        <source>The device %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>デバイス %1 は、ここで読み込まれた後に %2 によって削除されました (%3)。</translation>
    </message>
    <message>
        <source>Try again to store it as a new one.</source>
        <translation>新しいものとして保存するには、もう一度実行してください。</translation>
    </message>
    <message>
        <source>Look at it again, or try again: then that state goes into the history.</source>
        <translation>もう一度表示するか、もう一度実行してください: 実行するとその状態は履歴に入ります。</translation>
    </message>
    <message>
        <source>The database in %1 is not empty.</source>
        <translation>%1 のデータベースは空ではありません。</translation>
    </message>
    <message>
        <source>A stored template called %1 already exists.</source>
        <translation>%1 という保存済みのテンプレートがすでにあります。</translation>
    </message>
    <message>
        <source>A device called %1 already exists.</source>
        <translation>%1 というデバイスがすでにあります。</translation>
    </message>
    <message>
        <source>There is no state %1 in the history.</source>
        <translation>履歴に状態 %1 はありません。</translation>
    </message>
    <message>
        <source>The database in %1 is another one now.</source>
        <translation>%1 のデータベースは別のものになっています。</translation>
    </message>
    <message>
        <source>It is state %1 of the history.</source>
        <translation>履歴の状態 %1 です。</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is a link or not a regular file. Remove it if you did not put it there.</source>
        <translation>データベース %1 は使用されません: %2 はリンクか、通常のファイルではありません。自分で置いたものでなければ削除してください。</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program, and would change it. Close the database in that program. If the file is still there then, move it to another directory.</source>
        <translation>データベース %1 は使用されません: %2 は別のプログラムが書き込んだもので、データベースを変更してしまいます。そのプログラムでデータベースを閉じてください。それでもファイルが残っていれば、別のディレクトリに移動してください。</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program for several databases at once, and names a file that would be removed. Open the database in that program, or move the file to another directory.</source>
        <translation>データベース %1 は使用されません: %2 は別のプログラムが複数のデータベースのために書き込んだもので、削除されてしまうファイルを指しています。そのプログラムでデータベースを開くか、ファイルを別のディレクトリに移動してください。</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is the journal of another database, or of another state of this one, and would damage it. Move that file to another directory, then try again.</source>
        <translation>データベース %1 は使用されません: %2 は別のデータベース、またはこのデータベースの別の状態のジャーナルで、データベースを壊してしまいます。そのファイルを別のディレクトリに移動してから、やり直してください。</translation>
    </message>
    <message>
        <source>The database %1 is locked by another program (%2).</source>
        <translation>データベース %1 は別のプログラムにロックされています (%2)。</translation>
    </message>
    <message>
        <source>The database %1 cannot be written (%2).</source>
        <translation>データベース %1 に書き込めません (%2)。</translation>
    </message>
    <message>
        <source>The database %1 is damaged (%2). It is left as it is.</source>
        <translation>データベース %1 は破損しています (%2)。そのまま残されます。</translation>
    </message>
    <message>
        <source>There is no room for the database %1 (%2).</source>
        <translation>データベース %1 のための空き容量がありません (%2)。</translation>
    </message>
    <message>
        <source>The file %1 is not a database (%2). It is left as it is.</source>
        <translation>ファイル %1 はデータベースではありません (%2)。そのまま残されます。</translation>
    </message>
    <message>
        <source>The database %1 cannot be used: %2 (%3).</source>
        <translation>データベース %1 を使用できません: %2 (%3)。</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is not installed.</source>
        <translation>Qt の SQLite ドライバーがインストールされていません。</translation>
    </message>
    <message>
        <source>The database %1 was left in the middle of a change by a program that ended there. It can be read again when someone who can write it has opened it once.</source>
        <translation>データベース %1 は、途中で終了したプログラムにより変更の途中のままです。書き込み権限のある人が一度開くと、再び読み込めます。</translation>
    </message>
    <message>
        <source>The database %1 can be read, but not changed: %2.</source>
        <translation>データベース %1 は読み込めますが、変更できません: %2。</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be read: %2.</source>
        <translation>データベースのディレクトリ %1 を読み込めません: %2。</translation>
    </message>
    <message>
        <source>The database directory %1 does not exist.</source>
        <translation>データベースのディレクトリ %1 は存在しません。</translation>
    </message>
    <message>
        <source>The database directory %1 is not a directory: a part of it is a file.</source>
        <translation>データベースのディレクトリ %1 はディレクトリではありません: 一部がファイルです。</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be reached: %2.</source>
        <translation>データベースのディレクトリ %1 にアクセスできません: %2。</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 はファイルではありません。</translation>
    </message>
    <message>
        <source>The database %1 is empty: its content was lost. It is left as it is; restore a backup copy, or delete it to start over.</source>
        <translation>データベース %1 は空です: 内容が失われました。そのまま残されます。コピーで置き換えるか、削除して始め直してください。</translation>
    </message>
    <message>
        <source>The file %1 is not a database (too short). It is left as it is.</source>
        <translation>ファイル %1 はデータベースではありません (短すぎます)。そのまま残されます。</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached: it is a link to %2 (%3). Is the drive or the share that it is on connected?</source>
        <translation>データベース %1 にアクセスできません: %2 へのリンクです (%3)。ドライブまたは共有は接続されていますか?</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached (%2). Is the drive or the share that it is on connected?</source>
        <translation>データベース %1 にアクセスできません (%2)。ドライブまたは共有は接続されていますか?</translation>
    </message>
    <message>
        <source>There is no database %1, but %2, which a program left that was writing it. Put the database back, or move that file to another directory to begin with an empty database.</source>
        <translation>データベース %1 はありませんが、書き込み中だったプログラムが残した %2 があります。データベースを元に戻すか、そのファイルを別のディレクトリに移動して空のデータベースから始めてください。</translation>
    </message>
    <message>
        <source>The database directory %1 holds no database, and none can be created: %2.</source>
        <translation>ディレクトリ %1 にデータベースがなく、作成もできません: %2。</translation>
    </message>
    <message>
        <source>The database %1 is damaged (its end is missing). It is left as it is.</source>
        <translation>データベース %1 は破損しています (末尾がありません)。そのまま残されます。</translation>
    </message>
    <message>
        <source>The database %1 cannot be created: %2.</source>
        <translation>データベース %1 を作成できません: %2。</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>データベース %1 は使用中に別のプログラムにより置き換えまたは削除されました。何も変更されていません: 現在のデバイスを確認してから、やり直してください。</translation>
    </message>
    <message>
        <source>%1 Whether the change was stored cannot be read: look at the devices before you try again.</source>
        <translation>%1 変更が保存されたかどうか読み取れません: デバイスを確認してから、やり直してください。</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while a change was stored, which is lost: look at the devices that are there now, then try again.</source>
        <translation>データベース %1 は変更の保存中に別のプログラムにより置き換えまたは削除され、その変更は失われました: 現在のデバイスを確認してから、やり直してください。</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its texts are %2, not UTF-8. It is left as it is.</source>
        <translation>データベース %1 は別のプログラムにより変更されました: テキストが UTF-8 ではなく %2 です。そのまま残されます。</translation>
    </message>
    <message>
        <source>The file %1 is a database of another program. It is left as it is.</source>
        <translation>ファイル %1 は別のプログラムのデータベースです。そのまま残されます。</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer program (its schema is %2, this program knows up to %3). It is left as it is.</source>
        <translation>データベース %1 は新しいプログラムで作成されました (スキーマ %2、このプログラムの対応は %3 まで)。そのまま残されます。</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its tables are not those of schema %2. It is left as it is.</source>
        <translation>データベース %1 は別のプログラムにより変更されました: テーブルがスキーマ %2 のものではありません。そのまま残されます。</translation>
    </message>
    <message>
        <source>The database in %1 is damaged: %2</source>
        <translation>%1 のデータベースは破損しています: %2</translation>
    </message>
    <message>
        <source>The database server %1 did not answer in time.</source>
        <translation>データベースサーバー %1 が時間内に応答しませんでした。</translation>
    </message>
    <message>
        <source>The database server %1 cannot be reached: %2.</source>
        <translation>データベースサーバー %1 にアクセスできません: %2。</translation>
    </message>
    <message>
        <source>The database server %1 refused: %2.</source>
        <translation>データベースサーバー %1 に拒否されました: %2。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 does not allow that to the login %3: its administrator can grant the role %4 or %5.</source>
        <translation>サーバー %2 のデータベース %1 は、ログイン %3 にそれを許可していません: 管理者がロール %4 または %5 を付与できます。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 has no schema %3 for devices: its administrator can make it with &quot;gfpdb server sql&quot;.</source>
        <translation>サーバー %2 のデータベース %1 にデバイス用のスキーマ %3 がありません: 管理者が「gfpdb server sql」で作成できます。</translation>
    </message>
    <message>
        <source>There is no room for the change on the server %1.</source>
        <translation>サーバー %1 に変更のための空き容量がありません。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is locked by another program.</source>
        <translation>サーバー %2 のデータベース %1 は別のプログラムにロックされています。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is changed by too many programs now: try again.</source>
        <translation>サーバー %2 のデータベース %1 は多くのプログラムに変更されている最中です: やり直してください。</translation>
    </message>
    <message>
        <source>The directory %1 has the database %2 and names a server in %3. Move the database to another directory, and copy its records from there to the server with &quot;gfpdb copy&quot;.</source>
        <translation>ディレクトリ %1 にはデータベース %2 があり、%3 でサーバーも指定されています。データベースを別のディレクトリに移動し、そこから「gfpdb copy」でレコードをサーバーにコピーしてください。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 cannot be read by the login %3: its administrator can grant the role %4.</source>
        <translation>サーバー %2 のデータベース %1 はログイン %3 では読み込めません: 管理者がロール %4 を付与できます。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the server takes no changes now.</source>
        <translation>サーバー %2 のデータベース %1 は読み込めますが、変更できません: サーバーは現在変更を受け付けていません。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the login %3 has not the role %4.</source>
        <translation>サーバー %2 のデータベース %1 は読み込めますが、変更できません: ログイン %3 にロール %4 がありません。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by a newer program (schema %3). It is left as it is.</source>
        <translation>サーバー %2 のデータベース %1 は新しいプログラムで作成されました (スキーマ %3)。そのまま残されます。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is a database of another program. It is left as it is.</source>
        <translation>サーバー %2 のデータベース %1 は別のプログラムのデータベースです。そのまま残されます。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by an older program (schema %3): it can be used when someone with the role %4 has opened it once.</source>
        <translation>サーバー %2 のデータベース %1 は古いプログラムで作成されました (スキーマ %3): ロール %4 を持つ人が一度開くと使用できます。</translation>
    </message>
    <message>
        <source>The file %1 names a server since the directory was opened: open it again.</source>
        <translation>ディレクトリを開いた後に、ファイル %1 でサーバーが指定されました: ディレクトリを開き直してください。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>メーカー</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>ダイ数</translation>
    </message>
    <message>
        <source>Dies are selected by C2</source>
        <translation>C2 によるダイの選択</translation>
    </message>
    <message>
        <source>Page size (bytes)</source>
        <translation>ページサイズ(バイト)</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>アドレスのバイト数</translation>
    </message>
    <message>
        <source>4-byte addressing, enter</source>
        <translation>4 バイトアドレス、開始</translation>
    </message>
    <message>
        <source>4-byte addressing, leave</source>
        <translation>4 バイトアドレス、終了</translation>
    </message>
    <message>
        <source>4-byte addressing, register and bit</source>
        <translation>4 バイトアドレス、レジスタとビット</translation>
    </message>
    <message>
        <source>Quad enable</source>
        <translation>クアッド有効化</translation>
    </message>
    <message>
        <source>Unlock blocks</source>
        <translation>ブロックのロック解除</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Busy is read by</source>
        <translation>ビジーの読み出し</translation>
    </message>
    <message>
        <source>Dummy clocks, single</source>
        <translation>ダミーサイクル数、シングル</translation>
    </message>
    <message>
        <source>Quad read</source>
        <translation>クアッド読み出し</translation>
    </message>
    <message>
        <source>Dummy clocks, quad</source>
        <translation>ダミーサイクル数、クアッド</translation>
    </message>
    <message>
        <source>Quad program</source>
        <translation>クアッド書き込み</translation>
    </message>
    <message>
        <source>Page program, longest wait (us)</source>
        <translation>ページ書き込み、最長待ち時間 (us)</translation>
    </message>
    <message>
        <source>Erase, longest wait (ms)</source>
        <translation>消去、最長待ち時間 (ms)</translation>
    </message>
    <message>
        <source>from the ID</source>
        <translation>ID から</translation>
    </message>
    <message>
        <source>from the density</source>
        <translation>容量から</translation>
    </message>
    <message>
        <source>assumed</source>
        <translation>仮定</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>The command is on four lines, but the single-I/O flow has one.</source>
        <translation>コマンドは 4 線ですが、シングル I/O フローは 1 線です。</translation>
    </message>
    <message>
        <source>The image is compared with a mask: its bytes with bits that the mask clears never match.</source>
        <translation>イメージがマスク付きで比較されます: マスクで消えるビットを持つバイトは決して一致しません。</translation>
    </message>
    <message>
        <source>The expected data have bits that the mask clears: they never match.</source>
        <translation>期待データにマスクで消えるビットがあります: 決して一致しません。</translation>
    </message>
    <message>
        <source>The mask has no bit: whatever is read matches.</source>
        <translation>マスクにビットがありません: 何を読んでも一致します。</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: what is beyond the end of a page overwrites its start.</source>
        <translation>ページサイズは %1 ですが、デバイスのページは %2 バイトです: ページの終わりを超えた分はその先頭を上書きします。</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: programming takes longer than necessary.</source>
        <translation>ページサイズは %1 ですが、デバイスのページは %2 バイトです: 書き込みに必要以上の時間がかかります。</translation>
    </message>
    <message>
        <source>Data are changed in an operation that is also executed when the user asked for neither Program nor Erase.</source>
        <translation>ユーザーが Program も Erase も要求していないときにも実行される操作で、データが変更されます。</translation>
    </message>
    <message>
        <source>Three address bytes reach %1 bytes, but the action works on %2.</source>
        <translation>3 バイトのアドレスで届くのは %1 バイトですが、アクションの対象は %2 バイトです。</translation>
    </message>
    <message>
        <source>The command does not have the bus width %1. Allowed: %2.</source>
        <translation>このコマンドにバス幅 %1 はありません。許容: %2。</translation>
    </message>
    <message>
        <source>This is a command that programs.</source>
        <translation>これは書き込みのコマンドです。</translation>
    </message>
    <message>
        <source>This is a command that reads data.</source>
        <translation>これはデータを読むコマンドです。</translation>
    </message>
    <message>
        <source>This is a command that erases.</source>
        <translation>これは消去のコマンドです。</translation>
    </message>
    <message>
        <source>The command has no dummy clocks.</source>
        <translation>このコマンドにダミーサイクルはありません。</translation>
    </message>
    <message>
        <source>The command has two dummy clocks at least, its mode clocks.</source>
        <translation>このコマンドには少なくとも 2 つのダミーサイクル (モードサイクル) があります。</translation>
    </message>
    <message>
        <source>Nothing in the loop depends on its step: every step does the same.</source>
        <translation>ループ内に回に依存するものがありません: どの回も同じことをします。</translation>
    </message>
    <message>
        <source>The device has one die: the loop has one step.</source>
        <translation>デバイスのダイは 1 つです: ループは 1 回だけです。</translation>
    </message>
    <message>
        <source>There is no ID check: the flow changes whatever chip is connected.</source>
        <translation>ID の確認がありません: フローは接続されているどのチップも変更します。</translation>
    </message>
    <message>
        <source>The chip is changed before its ID is checked.</source>
        <translation>ID を確認する前にチップが変更されます。</translation>
    </message>
    <message>
        <source>4-byte addressing is entered here, and Termination does not leave it.</source>
        <translation>ここで 4 バイトアドレスが開始され、Termination で終了されません。</translation>
    </message>
    <message>
        <source>No command uses this write enable.</source>
        <translation>この書き込み許可を使うコマンドがありません。</translation>
    </message>
    <message>
        <source>The chip is in deep power-down and ignores the command.</source>
        <translation>チップはディープパワーダウン中で、コマンドを無視します。</translation>
    </message>
    <message>
        <source>The command follows the reset that brings the chip to its end.</source>
        <translation>コマンドが、チップを最終状態にするリセットの後にあります。</translation>
    </message>
    <message>
        <source>The command is on four lines, and nothing before it sets or checks the quad-enable bit.</source>
        <translation>コマンドは 4 線ですが、その前に Quad Enable ビットを設定または確認するものがありません。</translation>
    </message>
    <message>
        <source>%1 us are waited for instead of asking whether the chip is ready.</source>
        <translation>チップの準備完了を確認する代わりに %1 µs 待ちます。</translation>
    </message>
    <message>
        <source>Nothing waits until the chip is ready: it ignores the commands that follow.</source>
        <translation>チップの準備ができるまで待つものがありません: チップは後続のコマンドを無視します。</translation>
    </message>
    <message>
        <source>There is no write enable before it: the chip ignores the command.</source>
        <translation>その前に書き込み許可がありません: チップはコマンドを無視します。</translation>
    </message>
    <message>
        <source>The command has no address, but the action sends one.</source>
        <translation>コマンドにアドレスはありませんが、アクションは送信します。</translation>
    </message>
    <message>
        <source>The command has an address, but the action sends none.</source>
        <translation>コマンドにはアドレスがありますが、アクションは送信しません。</translation>
    </message>
    <message>
        <source>The command always has four address bytes, but the action sends three.</source>
        <translation>コマンドのアドレスは常に 4 バイトですが、アクションは 3 バイトを送信します。</translation>
    </message>
    <message>
        <source>The action sends four address bytes, but nothing before it enters 4-byte addressing.</source>
        <translation>アクションは 4 バイトのアドレスを送信しますが、その前に 4 バイトアドレスを開始するものがありません。</translation>
    </message>
    <message>
        <source>The action sends three address bytes, but 4-byte addressing was entered before.</source>
        <translation>アクションは 3 バイトのアドレスを送信しますが、その前に 4 バイトアドレスが開始されています。</translation>
    </message>
    <message>
        <source>Template name</source>
        <translation>テンプレート名</translation>
    </message>
    <message>
        <source>Flow template</source>
        <translation>フローのテンプレート</translation>
    </message>
    <message>
        <source>an unpaired surrogate is not a character</source>
        <translation>対になっていないサロゲートは文字ではありません</translation>
    </message>
    <message>
        <source>the name %1 occurs twice</source>
        <translation>名前 %1 が 2 回使われています</translation>
    </message>
    <message>
        <source>values are nested too deeply</source>
        <translation>値の入れ子が深すぎます</translation>
    </message>
    <message>
        <source>there is text after the end</source>
        <translation>末尾の後に文字列があります</translation>
    </message>
    <message>
        <source>an object needs a name in double quotes here</source>
        <translation>ここではオブジェクトに二重引用符で囲んだ名前が必要です</translation>
    </message>
    <message>
        <source>&quot;:&quot; is missing after %1</source>
        <translation>%1 の後に「:」がありません</translation>
    </message>
    <message>
        <source>an object needs &quot;,&quot; or &quot;}&quot; here</source>
        <translation>ここではオブジェクトに「,」または「}」が必要です</translation>
    </message>
    <message>
        <source>a list needs &quot;,&quot; or &quot;]&quot; here</source>
        <translation>ここではリストに「,」または「]」が必要です</translation>
    </message>
    <message>
        <source>\u needs four hexadecimal digits</source>
        <translation>\u には 16 進数 4 桁が必要です</translation>
    </message>
    <message>
        <source>a string is not terminated</source>
        <translation>文字列が閉じられていません</translation>
    </message>
    <message>
        <source>there is no such escape</source>
        <translation>このようなエスケープはありません</translation>
    </message>
    <message>
        <source>a string has a control character or a line break in it</source>
        <translation>文字列に制御文字または改行があります</translation>
    </message>
    <message>
        <source>a string is not UTF-8</source>
        <translation>文字列が UTF-8 ではありません</translation>
    </message>
    <message>
        <source>a number is too large</source>
        <translation>数値が大きすぎます</translation>
    </message>
    <message>
        <source>a value was expected</source>
        <translation>値が必要です</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true または false</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>オブジェクト</translation>
    </message>
    <message>
        <source>A string was expected, but this is %1.</source>
        <translation>文字列が必要ですが、%1 です。</translation>
    </message>
    <message>
        <source>A list was expected, but this is %1.</source>
        <translation>リストが必要ですが、%1 です。</translation>
    </message>
    <message>
        <source>An object was expected, but this is %1.</source>
        <translation>オブジェクトが必要ですが、%1 です。</translation>
    </message>
    <message>
        <source>%1 is not known here. Allowed: %2.</source>
        <translation>ここでは %1 は不明です。許容: %2。</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1 がありません。</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>カタログ %1 を読み込めません: %2。</translation>
    </message>
    <message>
        <source>device %1: %2</source>
        <translation>デバイス %1: %2</translation>
    </message>
    <message>
        <source>stored template %1: %2</source>
        <translation>保存済みのテンプレート %1: %2</translation>
    </message>
    <message>
        <source>The device %1 is already in %2.</source>
        <translation>デバイス %1 はすでに %2 にあります。</translation>
    </message>
    <message>
        <source>The stored template %1 is already in %2.</source>
        <translation>保存済みのテンプレート %1 はすでに %2 にあります。</translation>
    </message>
    <message>
        <source>The device %1 exists with different content: --replace replaces it.</source>
        <translation>デバイス %1 は異なる内容で存在します: --replace で置き換わります。</translation>
    </message>
    <message>
        <source>The stored template %1 exists with different content: --replace replaces it.</source>
        <translation>保存済みのテンプレート %1 は異なる内容で存在します: --replace で置き換わります。</translation>
    </message>
    <message>
        <source>The name of the device %1 is that of a stored template.</source>
        <translation>デバイス %1 の名前は保存済みのテンプレートの名前です。</translation>
    </message>
    <message>
        <source>The name of the stored template %1 is that of a device.</source>
        <translation>保存済みのテンプレート %1 の名前はデバイスの名前です。</translation>
    </message>
    <message>
        <source>The column is missing.</source>
        <translation>列がありません。</translation>
    </message>
    <message>
        <source>The column is not known. Allowed: %1.</source>
        <translation>不明な列です。許容: %1。</translation>
    </message>
    <message>
        <source>The column occurs twice.</source>
        <translation>列が 2 回あります。</translation>
    </message>
    <message>
        <source>A quote that opens in this row is never closed.</source>
        <translation>この行で開いた引用符が閉じられていません。</translation>
    </message>
    <message>
        <source>The row has 1 cell, the line of column names has %1.</source>
        <translation>この行のセルは 1 個ですが、列名の行は %1 個です。</translation>
    </message>
    <message>
        <source>The row has %1 cells, the line of column names has %2.</source>
        <translation>この行のセルは %1 個ですが、列名の行は %2 個です。</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>ファイルを読み込めません: %1。</translation>
    </message>
    <message>
        <source>This is not valid JSON: %1.</source>
        <translation>有効な JSON ではありません: %1。</translation>
    </message>
    <message>
        <source>This is not a file of records. Allowed: %1.</source>
        <translation>レコードのファイルではありません。許容: %1。</translation>
    </message>
    <message>
        <source>This version of the format is not known. Allowed: %1.</source>
        <translation>この形式バージョンは不明です。許容: %1。</translation>
    </message>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>テキストが UTF-8 ではありません。</translation>
    </message>
    <message>
        <source>A whole number or null was expected, but this is %1.</source>
        <translation>整数または null が必要ですが、%1 です。</translation>
    </message>
    <message>
        <source>device family</source>
        <translation>デバイスファミリー</translation>
    </message>
    <message>
        <source>configuration mode</source>
        <translation>コンフィギュレーションモード</translation>
    </message>
    <message>
        <source>single-I/O flow</source>
        <translation>シングル I/O フロー</translation>
    </message>
    <message>
        <source>quad-I/O flow</source>
        <translation>クアッド I/O フロー</translation>
    </message>
    <message>
        <source>This operation occurs twice.</source>
        <translation>この操作は 2 回あります。</translation>
    </message>
    <message>
        <source>There is no such operation. Allowed: %1.</source>
        <translation>このような操作はありません。許容: %1。</translation>
    </message>
    <message>
        <source>There is no such action. Allowed: %1.</source>
        <translation>このようなアクションはありません。許容: %1。</translation>
    </message>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>%1 のフローを読み込めません。</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: the copy gets these, and its flow has the %2 of %3.</source>
        <translation>デバイスのシングル I/O ダミーサイクル数は最大 %1 です: コピーはこの値になり、フローは %3 の %2 のままです。</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no serial flash devices.</source>
        <translation>コンフィギュレーションモード %1 にはシリアルフラッシュデバイスがありません。</translation>
    </message>
    <message>
        <source>page size</source>
        <translation>ページサイズ</translation>
    </message>
    <message>
        <source>quad-I/O dummy clocks</source>
        <translation>クアッド I/O ダミーサイクル数</translation>
    </message>
    <message>
        <source>%1: %2 in the list, %3 by %4</source>
        <translation>%1: リストでは %2、%4 では %3</translation>
    </message>
    <message>
        <source>address bytes</source>
        <translation>アドレスのバイト数</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 または %2</translation>
    </message>
    <message>
        <source>erase by %1</source>
        <translation>%1 による消去</translation>
    </message>
    <message>
        <source>not</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>予約済み</translation>
    </message>
    <message>
        <source>quad enable</source>
        <translation>クアッド有効化</translation>
    </message>
    <message>
        <source>basic table: %1 double words in read-outs of this part, %2 here</source>
        <translation>基本テーブル: この部品の読み出しデータでは %1 ダブルワード、ここでは %2</translation>
    </message>
    <message>
        <source>4-4-4 read: in read-outs of this part, but not here</source>
        <translation>4-4-4 読み出し: この部品の読み出しデータにはあるが、ここにはない</translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 は数値ではありません。</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3 are allowed.</source>
        <translation>%1 は範囲外です: %2 ～ %3 が許容されます。</translation>
    </message>
    <message>
        <source>%1 is more than 32Gb.</source>
        <translation>%1 は 32Gb を超えています。</translation>
    </message>
    <message>
        <source>%1 is not a density such as 128Mb.</source>
        <translation>%1 は 128Mb のような容量ではありません。</translation>
    </message>
    <message>
        <source>%1 is neither an erase command such as %2 nor %3.</source>
        <translation>%1 は %2 のような消去コマンドでも%3でもありません。</translation>
    </message>
    <message>
        <source>%1 is not a power of two.</source>
        <translation>%1 は 2 のべき乗ではありません。</translation>
    </message>
    <message>
        <source>There is no value %1.</source>
        <translation>値 %1 はありません。</translation>
    </message>
    <message>
        <source>The value %1 is missing: enter it.</source>
        <translation>値 %1 がありません: 入力してください。</translation>
    </message>
    <message>
        <source>The number of dies, %1, does not divide the density.</source>
        <translation>ダイの数 %1 で容量を割り切れません。</translation>
    </message>
    <message>
        <source>The erase command %1 does not divide the density.</source>
        <translation>消去コマンド %1 で容量を割り切れません。</translation>
    </message>
    <message>
        <source>The density %1 (%2) is not what the ID usually stands for, which is %3.</source>
        <translation>容量 %1 (%2) は、この ID が通常示す %3 ではありません。</translation>
    </message>
    <message>
        <source>SFDP DW2 says a density that no device can have: %1.</source>
        <translation>SFDP DW2 の容量は、どのデバイスにもあり得ません: %1。</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: it gets these, and its flow has %2.</source>
        <translation>デバイスのシングル I/O ダミーサイクル数は最大 %1 です: この値になり、フローは %2 です。</translation>
    </message>
    <message>
        <source>The chip has a table of the maker %1, and its ID is of the maker %2.</source>
        <translation>チップにはメーカー %1 のテーブルがありますが、ID はメーカー %2 のものです。</translation>
    </message>
    <message>
        <source>No listed part tells what the maker&apos;s parts have in common: usual commands are assumed.</source>
        <translation>このメーカーの部品に共通する点を示す登録済みの部品がありません: 一般的なコマンドを仮定します。</translation>
    </message>
    <message>
        <source>Several listed parts have this ID: %1.</source>
        <translation>この ID を持つ登録済みの部品が複数あります: %1。</translation>
    </message>
    <message>
        <source>The commands have four address bytes, and nothing enters 4-byte addressing.</source>
        <translation>コマンドのアドレスは 4 バイトですが、4 バイトアドレッシングに入る手段がありません。</translation>
    </message>
    <message>
        <source>The commands have three address bytes, and the device is in 4-byte addressing.</source>
        <translation>コマンドのアドレスは 3 バイトですが、デバイスは 4 バイトアドレッシングです。</translation>
    </message>
    <message>
        <source>Three address bytes do not reach all of %1.</source>
        <translation>3 バイトのアドレスでは %1 のすべてに届きません。</translation>
    </message>
    <message>
        <source>SFDP DW1 lists three address bytes alone, which do not reach all of %1: four are taken.</source>
        <translation>SFDP DW1 のアドレスは 3 バイトだけで、%1 のすべてに届きません: 4 バイトを使います。</translation>
    </message>
    <message>
        <source>SFDP DW16 lists every way into 4-byte addressing, and SFDP DW1 three address bytes: DW16 is ignored.</source>
        <translation>SFDP DW16 は 4 バイトアドレッシングへのすべての手段を、SFDP DW1 は 3 バイトのアドレスを示します: DW16 は無視されます。</translation>
    </message>
    <message>
        <source>SFDP DW16 lists no way into 4-byte addressing that a flow can take: %1 is taken.</source>
        <translation>SFDP DW16 には、フローで使える 4 バイトアドレッシングへの手段がありません: %1 を使います。</translation>
    </message>
    <message>
        <source>SFDP has no page size: %1 is taken (%2).</source>
        <translation>SFDP にページサイズがありません: %1 を使います (%2)。</translation>
    </message>
    <message>
        <source>SFDP DW11 has a page size that no flow can have: %1 is taken (%2).</source>
        <translation>SFDP DW11 のページサイズはフローでは使えません: %1 を使います (%2)。</translation>
    </message>
    <message>
        <source>SFDP DW15 says with a reserved value how quad is enabled: look it up and enter it.</source>
        <translation>SFDP DW15 のクアッド有効化の方法は予約値です: 調べて入力してください。</translation>
    </message>
    <message>
        <source>SFDP does not say how quad is enabled: %1 is taken (%2).</source>
        <translation>SFDP にクアッド有効化の方法がありません: %1 を使います (%2)。</translation>
    </message>
    <message>
        <source>SFDP lists no read on four lines: the quad-I/O flow uses one.</source>
        <translation>SFDP に 4 線の読み出しがありませんが、クアッド I/O フローはこれを使います。</translation>
    </message>
    <message>
        <source>No erase command serves the whole part: the chip is erased at once.</source>
        <translation>部品全体に使える消去コマンドがありません: チップを一括で消去します。</translation>
    </message>
    <message>
        <source>The four bytes of each double word are in reverse order.</source>
        <translation>各ダブルワードの 4 バイトが逆順です。</translation>
    </message>
    <message>
        <source>The bytes do not begin with the signature &quot;SFDP&quot;.</source>
        <translation>バイト列がシグネチャー「SFDP」で始まっていません。</translation>
    </message>
    <message>
        <source>The signature &quot;SFDP&quot; is at %1 and not at the start: bytes were added before it.</source>
        <translation>シグネチャー「SFDP」は先頭ではなく %1 にあります: 前にバイトが追加されています。</translation>
    </message>
    <message>
        <source>The read-out ends within the SFDP header.</source>
        <translation>読み出しデータが SFDP ヘッダーの途中で終わっています。</translation>
    </message>
    <message>
        <source>SFDP revision %1 is unknown: revisions 1.x can be read.</source>
        <translation>SFDP リビジョン %1 は不明です: リビジョン 1.x を読み込めます。</translation>
    </message>
    <message>
        <source>%1 has the unknown revision %2: it is not read.</source>
        <translation>%1 は不明なリビジョン %2 です: 読み込みません。</translation>
    </message>
    <message>
        <source>There are %1 headers of %2: the one of revision %3 is taken.</source>
        <translation>%2のヘッダーが %1 個あります: リビジョン %3 のものを使います。</translation>
    </message>
    <message>
        <source>The read-out ends within the parameter headers: %1 of %2 are there.</source>
        <translation>読み出しデータがパラメーターヘッダーの途中で終わっています: %2 個中 %1 個があります。</translation>
    </message>
    <message>
        <source>A table begins at %1: there is room for %2 parameter headers, not for %3.</source>
        <translation>テーブルが %1 から始まります: パラメーターヘッダーは %2 個分の場所しかなく、%3 個は入りません。</translation>
    </message>
    <message>
        <source>The parameter header at %1 is blank.</source>
        <translation>%1 のパラメーターヘッダーは空です。</translation>
    </message>
    <message>
        <source>%1 begins at %2, within the headers: it is not read.</source>
        <translation>%1はヘッダー内の %2 から始まります: 読み込みません。</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1は空です。</translation>
    </message>
    <message>
        <source>%1 is not in the read-out: it begins at %2, and the read-out ends at %3.</source>
        <translation>%1は読み出しデータにありません: %2 から始まりますが、データは %3 で終わります。</translation>
    </message>
    <message>
        <source>The read-out ends within %1: %2 of %3 double words are there.</source>
        <translation>読み出しデータが%1の途中で終わっています: %3 ダブルワード中 %2 があります。</translation>
    </message>
    <message>
        <source>%1 begins at %2, which is not a multiple of 4.</source>
        <translation>%1は 4 の倍数でない %2 から始まります。</translation>
    </message>
    <message>
        <source>%1 and %2 overlap.</source>
        <translation>%1と%2が重なっています。</translation>
    </message>
    <message>
        <source>The bytes at %1 are in no table: they are not read.</source>
        <translation>%1 のバイトはどのテーブルにもありません: 読み込みません。</translation>
    </message>
    <message>
        <source>There is no basic table.</source>
        <translation>基本テーブルがありません。</translation>
    </message>
    <message>
        <source>The basic table is blank.</source>
        <translation>基本テーブルは空です。</translation>
    </message>
    <message>
        <source>The basic table has %1 double words: %2 belong to its revision %3.</source>
        <translation>基本テーブルは %1 ダブルワードです: リビジョン %3 では %2 です。</translation>
    </message>
    <message>
        <source>SFDP DW%1 has zeros where every part has ones: bytes may be missing or shifted.</source>
        <translation>SFDP DW%1 には、どの部品でも 1 のところに 0 があります: バイトの欠落やずれの可能性があります。</translation>
    </message>
    <message>
        <source>SFDP DW2 says no density that a part can have: %1.</source>
        <translation>SFDP DW2 は部品にあり得る容量ではありません: %1。</translation>
    </message>
    <message>
        <source>SFDP DW1 says with a reserved value how many address bytes there are.</source>
        <translation>SFDP DW1 のアドレスのバイト数は予約値です。</translation>
    </message>
    <message>
        <source>SFDP DW%1 lists the %2 read, and DW%3 has no command for it.</source>
        <translation>SFDP DW%1 には %2 読み出しがありますが、DW%3 にそのコマンドがありません。</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 has no command: it is left out.</source>
        <translation>SFDP DW%1: 消去タイプ %2 にコマンドがありません: 除外します。</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 erases 2^%3 bytes, which is too much: it is left out.</source>
        <translation>SFDP DW%1: 消去タイプ %2 は 2^%3 バイトを消去し、大きすぎます: 除外します。</translation>
    </message>
    <message>
        <source>SFDP DW1 erases 4 KiB by %1, which no erase type does.</source>
        <translation>SFDP DW1 は %1 で 4 KiB を消去しますが、そのような消去タイプはありません。</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions is blank.</source>
        <translation>4 バイト命令のテーブルは空です。</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions has no erase commands.</source>
        <translation>4 バイト命令のテーブルに消去コマンドがありません。</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1, which the basic table does not have.</source>
        <translation>4 バイト命令のテーブルには、基本テーブルにない消去タイプ %1 があります。</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1 and has no command for it.</source>
        <translation>4 バイト命令のテーブルに消去タイプ %1 がありますが、コマンドがありません。</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 come to %2 bytes, and the part has %3.</source>
        <translation>セクターマップ %1 のセクターは合計 %2 バイトですが、部品は %3 です。</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 are erased by types that the basic table does not have.</source>
        <translation>セクターマップ %1 のセクターは、基本テーブルにないタイプで消去されます。</translation>
    </message>
    <message>
        <source>The sector map has no end.</source>
        <translation>セクターマップに終わりがありません。</translation>
    </message>
    <message>
        <source>the basic table</source>
        <translation>基本テーブル</translation>
    </message>
    <message>
        <source>the sector map</source>
        <translation>セクターマップ</translation>
    </message>
    <message>
        <source>the table of 4-byte instructions</source>
        <translation>4 バイト命令のテーブル</translation>
    </message>
    <message>
        <source>the table %1</source>
        <translation>テーブル %1</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was replaced by another one while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>サーバー %2 のデータベース %1 は使用中に別のものに置き換えられました。何も変更されていません: 現在のデバイスを確認してから、もう一度試してください。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is another one now.</source>
        <translation>サーバー %2 のデータベース %1 は別のものになりました。</translation>
    </message>
    <message>
        <source>the certificates %1 are not a file</source>
        <translation>証明書 %1 はファイルではありません</translation>
    </message>
    <message>
        <source>no reason</source>
        <translation>理由なし</translation>
    </message>
    <message>
        <source>the connection is closed</source>
        <translation>接続が閉じられています</translation>
    </message>
    <message>
        <source>The server does not copy.</source>
        <translation>サーバーがコピーしません。</translation>
    </message>
    <message>
        <source>%1 is not a setting</source>
        <translation>%1 は設定ではありません</translation>
    </message>
    <message>
        <source>passwords do not belong into it: put them into the file .pgpass in your home directory</source>
        <translation>パスワードはここに書きません: ホームディレクトリのファイル .pgpass に入れてください</translation>
    </message>
    <message>
        <source>%1 is not a setting. There are: %2</source>
        <translation>%1 は設定ではありません。設定: %2</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 が 2 回あります</translation>
    </message>
    <message>
        <source>%1 cannot be %2</source>
        <translation>%1 は %2 にできません</translation>
    </message>
    <message>
        <source>it does not begin with %1</source>
        <translation>%1 で始まっていません</translation>
    </message>
    <message>
        <source>it has no settings</source>
        <translation>設定がありません</translation>
    </message>
    <message>
        <source>it names too many hosts</source>
        <translation>ホストが多すぎます</translation>
    </message>
    <message>
        <source>&quot;port&quot; must be one for all hosts, or one for each</source>
        <translation>「port」はすべてのホストに 1 つか、ホストごとに 1 つ必要です</translation>
    </message>
    <message>
        <source>it does not say which &quot;database&quot; is meant</source>
        <translation>どの「database」かが指定されていません</translation>
    </message>
    <message>
        <source>The settings of the server cannot be used: %1.</source>
        <translation>サーバーの設定を使えません: %1。</translation>
    </message>
    <message>
        <source>The file %1 cannot be used: %2.</source>
        <translation>ファイル %1 を使えません: %2。</translation>
    </message>
    <message>
        <source>The directory has the database %1: name the server in another directory, and copy the records there with &quot;gfpdb copy&quot;.</source>
        <translation>このディレクトリにはデータベース %1 があります: 別のディレクトリでサーバーを指定し、「gfpdb copy」でレコードをコピーしてください。</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>ファイル %1 に書き込めません: %2。</translation>
    </message>
    <message>
        <source>The database cannot keep %1 of %2: it is not a text in UTF-8, or has the character NUL.</source>
        <translation>データベースは %2 の %1 を保持できません: UTF-8 のテキストでないか、NUL 文字があります。</translation>
    </message>
    <message>
        <source>The device %1 is being changed by another program: try again.</source>
        <translation>デバイス %1 は別のプログラムが変更中です: もう一度試してください。</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>インポートはキャンセルされました。</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>%1 を超えています</translation>
    </message>
    <message>
        <source>The command is on four lines, and a write of the status registers before it clears the quad-enable bit.</source>
        <translation>コマンドは 4 線ですが、その前のステータスレジスタへの書き込みが Quad Enable ビットをクリアします。</translation>
    </message>
</context>
</TS>
