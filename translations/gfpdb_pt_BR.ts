<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>GFPC_CHARTS</name>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>Os fluxos de %1 não podem ser lidos.</translation>
    </message>
    <message>
        <source>%1 has no quad-I/O flow.</source>
        <translation>%1 não tem fluxo Quad I/O.</translation>
    </message>
    <message>
        <source>%1 has no single-I/O flow.</source>
        <translation>%1 não tem fluxo Single I/O.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>There are no fonts on this computer.</source>
        <translation>Não há fontes neste computador.</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>Fluxo Quad I/O</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>Fluxo Single I/O</translation>
    </message>
</context>
<context>
    <name>gfpdb</name>
    <message>
        <source>Upper and lower case count as the same.</source>
        <translation>Maiúsculas e minúsculas não são diferenciadas.</translation>
    </message>
    <message>
        <source>There is a built-in device called %1: choose another name.</source>
        <translation>Existe um dispositivo integrado chamado %1: escolha outro nome.</translation>
    </message>
    <message>
        <source>There is a built-in template called %1: choose another name.</source>
        <translation>Existe um modelo integrado chamado %1: escolha outro nome.</translation>
    </message>
    <message>
        <source>part name</source>
        <translation>Nome do componente</translation>
    </message>
    <message>
        <source>The device %1 is neither deleted nor replaced, because it could not be read when it was last looked for: %2</source>
        <translation>O dispositivo %1 não é excluído nem substituído, porque não pôde ser lido na última busca: %2</translation>
    </message>
    <message>
        <source>The flows of %1 in %2 cannot be read.</source>
        <translation>Os fluxos de %1 em %2 não podem ser lidos.</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a number.</source>
        <translation>A propriedade %1 de um dispositivo não é um número.</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a text.</source>
        <translation>A propriedade %1 de um dispositivo não é um texto.</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name.</source>
        <translation>Existe um modelo salvo chamado %1: escolha outro nome.</translation>
    </message>
    <message>
        <source>There is a device called %1: it is the one that is shown. Enter another name to rename it.</source>
        <translation>Existe um dispositivo chamado %1: é o que está sendo mostrado. Digite outro nome para renomeá-lo.</translation>
    </message>
    <message>
        <source>There is a device called %1 for this family and configuration mode: choose another name.</source>
        <translation>Existe um dispositivo chamado %1 para esta família e este modo de configuração: escolha outro nome.</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name, or remove that template first.</source>
        <translation>Existe um modelo salvo chamado %1: escolha outro nome ou remova antes esse modelo.</translation>
    </message>
    <message>
        <source>The template name %1 differs from the device name %2 in case only: choose another name.</source>
        <translation>O nome do modelo %1 difere do nome do dispositivo %2 só em maiúsculas e minúsculas: escolha outro nome.</translation>
    </message>
    <message>
        <source>There is a device called %1: choose another name.</source>
        <translation>Existe um dispositivo chamado %1: escolha outro nome.</translation>
    </message>
    <message>
        <source>A flash device with an I/O voltage of %1 cannot be connected to %2 devices: it must support 1.8 V.</source>
        <translation>Um dispositivo flash com tensão de I/O de %1 não pode ser conectado a dispositivos %2: ele precisa funcionar com 1,8 V.</translation>
    </message>
    <message>
        <source>%1 The device %2 that was deleted before was not put back: %3</source>
        <translation>%1 O dispositivo %2, excluído antes, não foi restaurado: %3</translation>
    </message>
    <message>
        <source>There is no record to save.</source>
        <translation>Não há registro para salvar.</translation>
    </message>
    <message>
        <source>The configuration mode has no flash devices.</source>
        <translation>O modo de configuração não tem dispositivos flash.</translation>
    </message>
    <message>
        <source>The device %1 contains text that is not valid UTF-8.</source>
        <translation>O dispositivo %1 contém texto que não é UTF-8 válido.</translation>
    </message>
    <message>
        <source>The template %1 is built in: it cannot be removed.</source>
        <translation>O modelo %1 é integrado: não pode ser removido.</translation>
    </message>
    <message>
        <source>device name</source>
        <translation>Nome do dispositivo</translation>
    </message>
    <message>
        <source>device ID</source>
        <translation>ID do dispositivo</translation>
    </message>
    <message>
        <source>I/O voltage</source>
        <translation>Tensão de I/O</translation>
    </message>
    <message>
        <source>density</source>
        <translation>Capacidade do dispositivo</translation>
    </message>
    <message>
        <source>total die count</source>
        <translation>Total de dies</translation>
    </message>
    <message>
        <source>number of single-I/O dummy clocks</source>
        <translation>Ciclos dummy no modo Single I/O</translation>
    </message>
    <message>
        <source>number of quad-I/O dummy clocks</source>
        <translation>Ciclos dummy no modo Quad I/O</translation>
    </message>
    <message>
        <source>template name</source>
        <translation>Nome do modelo</translation>
    </message>
    <message>
        <source>flow template</source>
        <translation>Modelo do fluxo de programação</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>um número inteiro de %1 a %2</translation>
    </message>
    <message>
        <source>one byte in hexadecimal, such as 0x9F</source>
        <translation>um byte em hexadecimal, como 0x9F</translation>
    </message>
    <message>
        <source>1 to %1 bytes in hexadecimal separated by single spaces, such as 0x00 0x02</source>
        <translation>de 1 a %1 bytes em hexadecimal separados por um espaço, como 0x00 0x02</translation>
    </message>
    <message>
        <source>an address of eight hexadecimal digits, such as 0x00010000</source>
        <translation>um endereço de oito dígitos hexadecimais, como 0x00010000</translation>
    </message>
    <message>
        <source>%1, or %2</source>
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>text of 1 to %1 characters on one line</source>
        <translation>texto de 1 a %1 caracteres em uma linha</translation>
    </message>
    <message>
        <source>a power of two from 1 to %1</source>
        <translation>uma potência de dois de 1 a %1</translation>
    </message>
    <message>
        <source>Loop marker</source>
        <translation>Marca de laço</translation>
    </message>
    <message>
        <source>There is no action property with the number %1. Allowed: 0 to %2.</source>
        <translation>Não há propriedade de ação com o número %1. Permitido: de 0 a %2.</translation>
    </message>
    <message>
        <source>An empty value</source>
        <translation>Um valor vazio</translation>
    </message>
    <message>
        <source>%1 is not allowed for &quot;%2&quot;. Allowed: %3.</source>
        <translation>%1 não é permitido para “%2”. Permitido: %3.</translation>
    </message>
    <message>
        <source>The %1 is empty: 1 to %2 characters are allowed.</source>
        <translation>“%1” está vazio: são permitidos de 1 a %2 caracteres.</translation>
    </message>
    <message>
        <source>The %1 has characters that cannot be stored.</source>
        <translation>“%1” tem caracteres que não podem ser salvos.</translation>
    </message>
    <message>
        <source>The %1 has %2 characters: 1 to %3 characters are allowed.</source>
        <translation>“%1” tem %2 caracteres: são permitidos de 1 a %3.</translation>
    </message>
    <message>
        <source>The %1 has a line break or another control character: use letters, digits, punctuation and spaces.</source>
        <translation>“%1” tem uma quebra de linha ou outro caractere de controle: use letras, dígitos, pontuação e espaços.</translation>
    </message>
    <message>
        <source>The %1 %2 begins or ends with a space: remove it.</source>
        <translation>“%1” %2 começa ou termina com um espaço: remova-o.</translation>
    </message>
    <message>
        <source>The %1 %2 is reserved for a new device: choose another.</source>
        <translation>“%1” %2 é reservado para um dispositivo novo: escolha outro.</translation>
    </message>
    <message>
        <source>%1 Enter 1 to %2 bytes in hexadecimal, separated by spaces or commas, for example 0xC2 0x20 0x19.</source>
        <translation>%1 Digite de 1 a %2 bytes em hexadecimal, separados por espaços ou vírgulas, por exemplo 0xC2 0x20 0x19.</translation>
    </message>
    <message>
        <source>The device ID is empty.</source>
        <translation>O ID do dispositivo está vazio.</translation>
    </message>
    <message>
        <source>%1 is not a byte of a device ID.</source>
        <translation>%1 não é um byte de um ID de dispositivo.</translation>
    </message>
    <message>
        <source>The device ID has %1 bytes.</source>
        <translation>O ID do dispositivo tem %1 bytes.</translation>
    </message>
    <message>
        <source>The %1 %2 is out of range: %3 to %4 are allowed.</source>
        <translation>“%1”: %2 está fora do intervalo; é permitido de %3 a %4.</translation>
    </message>
    <message>
        <source>The %1 %2 is not known: choose one of %3.</source>
        <translation>“%1”: %2 não é conhecido; escolha entre %3.</translation>
    </message>
    <message>
        <source>The loop that starts at action %1 has no end.</source>
        <translation>O laço que começa na ação %1 não tem fim.</translation>
    </message>
    <message>
        <source>A loop over each %1 cannot be in a loop over each %2. Allowed: a loop over each page or sector in a loop over each die.</source>
        <translation>Um laço por “%1” não pode estar em um laço por “%2”. Permitido: um laço por “page” ou “sector” em um laço por “die”.</translation>
    </message>
    <message>
        <source>The end of a loop has no start before it.</source>
        <translation>O fim de um laço não tem início antes dele.</translation>
    </message>
    <message>
        <source>The end of a loop over each %1 closes a loop over each %2.</source>
        <translation>O fim de um laço por “%1” fecha um laço por “%2”.</translation>
    </message>
    <message>
        <source>The loop over each %1 has no %2 action to determine its step size.</source>
        <translation>O laço por “%1” não tem uma ação “%2” que determine seu passo.</translation>
    </message>
    <message>
        <source>One of several erases in a loop has a fixed address. Allowed: loop or die.</source>
        <translation>Um de vários apagamentos de um laço tem endereço fixo. Permitido: loop ou die.</translation>
    </message>
    <message>
        <source>The loop has page sizes of %1 and of %2. Allowed: one page size in a loop.</source>
        <translation>O laço tem tamanhos de página de %1 e de %2. Permitido: um só tamanho de página por laço.</translation>
    </message>
    <message>
        <source>The erase sizes %1 and %2 do not go together in one loop. Allowed: sizes of which each divides every larger one.</source>
        <translation>Os tamanhos de apagamento %1 e %2 não combinam em um laço. Permitido: tamanhos em que cada um divide todos os maiores.</translation>
    </message>
    <message>
        <source>The value &quot;loop&quot; is outside any loop.</source>
        <translation>O valor “loop” está fora de qualquer laço.</translation>
    </message>
    <message>
        <source>The value &quot;die&quot; is outside a loop over each die.</source>
        <translation>O valor “die” está fora de um laço por “die”.</translation>
    </message>
    <message>
        <source>The action has %1 address bytes, an earlier one has %2. Allowed: the same number in all actions of a flow.</source>
        <translation>A ação tem %1 bytes de endereço e uma anterior tem %2. Permitido: o mesmo número em todas as ações de um fluxo.</translation>
    </message>
    <message>
        <source>The flows cannot be read.</source>
        <translation>Os fluxos não podem ser lidos.</translation>
    </message>
    <message>
        <source>The device and its template need different names: both are called %1.</source>
        <translation>O dispositivo e seu modelo precisam de nomes diferentes: ambos se chamam %1.</translation>
    </message>
    <message>
        <source>There is no family %1. Allowed: %2 to %3.</source>
        <translation>A família %1 não existe. Permitido: de %2 a %3.</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no flash devices.</source>
        <translation>O modo de configuração %1 não tem dispositivos flash.</translation>
    </message>
    <message>
        <source>The %1 %2 is not a usual one. Usual: %3.</source>
        <translation>“%1”: %2 não é um valor usual. Usual: %3.</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no flows: the dialog drops them.</source>
        <translation>Os dispositivos deste modo de configuração não têm fluxos: o diálogo os descarta.</translation>
    </message>
    <message>
        <source>There are no flows.</source>
        <translation>Não há fluxos.</translation>
    </message>
    <message>
        <source>There are no flows for this configuration mode.</source>
        <translation>Não há fluxos para este modo de configuração.</translation>
    </message>
    <message>
        <source>The value is missing: %1 is stored.</source>
        <translation>O valor está faltando: %1 é salvo.</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no such value: the dialog drops it.</source>
        <translation>Os dispositivos deste modo de configuração não têm esse valor: o diálogo o descarta.</translation>
    </message>
    <message>
        <source>The copy in %1 cannot be compared: %2</source>
        <translation>A cópia em %1 não pode ser comparada: %2</translation>
    </message>
    <message>
        <source>The copy in %1 is not the same as %2.</source>
        <translation>A cópia em %1 não é igual a %2.</translation>
    </message>
    <message>
        <source>There is nothing to copy in %1.</source>
        <translation>Não há nada para copiar em %1.</translation>
    </message>
    <message>
        <source>an unknown day</source>
        <translation>uma data desconhecida</translation>
    </message>
    <message>
        <source>an unknown user</source>
        <translation>um usuário desconhecido</translation>
    </message>
    <message>
        <source>The stored template %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>O modelo salvo %1 foi salvo por %2 (data: %3) depois de procurado aqui.</translation>
    </message>
    <message>
        <source>The device %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>O dispositivo %1 foi salvo por %2 (data: %3) depois de procurado aqui.</translation>
    </message>
    <message>
        <source>The stored template %1 was changed by %2 on %3 since it was read here.</source>
        <translation>O modelo salvo %1 foi alterado por %2 (data: %3) depois de lido aqui.</translation>
    </message>
    <message>
        <source>The device %1 was changed by %2 on %3 since it was read here.</source>
        <translation>O dispositivo %1 foi alterado por %2 (data: %3) depois de lido aqui.</translation>
    </message>
    <message>
        <source>The stored template %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>O modelo salvo %1 foi excluído por %2 (data: %3) depois de lido aqui.</translation>
    </message>
    <message>
        <source>The device %1 was renamed by %2 on %3 since it was read here.</source>
        <translation>O dispositivo %1 foi renomeado por %2 (data: %3) depois de lido aqui.</translation>
    </message>
    <message>
        <source>The device %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>O dispositivo %1 foi excluído por %2 (data: %3) depois de lido aqui.</translation>
    </message>
    <message>
        <source>Try again to store it as a new one.</source>
        <translation>Tente novamente para salvá-lo como novo.</translation>
    </message>
    <message>
        <source>Look at it again, or try again: then that state goes into the history.</source>
        <translation>Veja-o novamente ou tente de novo: então esse estado vai para o histórico.</translation>
    </message>
    <message>
        <source>The database in %1 is not empty.</source>
        <translation>O banco de dados em %1 não está vazio.</translation>
    </message>
    <message>
        <source>A stored template called %1 already exists.</source>
        <translation>Já existe um modelo salvo chamado %1.</translation>
    </message>
    <message>
        <source>A device called %1 already exists.</source>
        <translation>Já existe um dispositivo chamado %1.</translation>
    </message>
    <message>
        <source>There is no state %1 in the history.</source>
        <translation>Não há estado %1 no histórico.</translation>
    </message>
    <message>
        <source>The database in %1 is another one now.</source>
        <translation>O banco de dados em %1 agora é outro.</translation>
    </message>
    <message>
        <source>It is state %1 of the history.</source>
        <translation>É o estado %1 do histórico.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is a link or not a regular file. Remove it if you did not put it there.</source>
        <translation>O banco de dados %1 não é usado: %2 é um link ou não é um arquivo comum. Remova-o se você não o colocou ali.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program, and would change it. Close the database in that program. If the file is still there then, move it to another directory.</source>
        <translation>O banco de dados %1 não é usado: %2 foi gravado por outro programa e o alteraria. Feche o banco de dados nesse programa. Se o arquivo ainda estiver lá, mova-o para outro diretório.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program for several databases at once, and names a file that would be removed. Open the database in that program, or move the file to another directory.</source>
        <translation>O banco de dados %1 não é usado: %2 foi gravado por outro programa para vários bancos de dados de uma vez e cita um arquivo que seria removido. Abra o banco de dados nesse programa ou mova o arquivo para outro diretório.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is the journal of another database, or of another state of this one, and would damage it. Move that file to another directory, then try again.</source>
        <translation>O banco de dados %1 não é usado: %2 é o diário de outro banco de dados, ou de outro estado deste, e o danificaria. Mova esse arquivo para outro diretório e tente de novo.</translation>
    </message>
    <message>
        <source>The database %1 is locked by another program (%2).</source>
        <translation>O banco de dados %1 está bloqueado por outro programa (%2).</translation>
    </message>
    <message>
        <source>The database %1 cannot be written (%2).</source>
        <translation>O banco de dados %1 não pode ser gravado (%2).</translation>
    </message>
    <message>
        <source>The database %1 is damaged (%2). It is left as it is.</source>
        <translation>O banco de dados %1 está danificado (%2). Ele é deixado como está.</translation>
    </message>
    <message>
        <source>There is no room for the database %1 (%2).</source>
        <translation>Não há espaço para o banco de dados %1 (%2).</translation>
    </message>
    <message>
        <source>The file %1 is not a database (%2). It is left as it is.</source>
        <translation>O arquivo %1 não é um banco de dados (%2). Ele é deixado como está.</translation>
    </message>
    <message>
        <source>The database %1 cannot be used: %2 (%3).</source>
        <translation>O banco de dados %1 não pode ser usado: %2 (%3).</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is not installed.</source>
        <translation>O driver SQLite do Qt não está instalado.</translation>
    </message>
    <message>
        <source>The database %1 was left in the middle of a change by a program that ended there. It can be read again when someone who can write it has opened it once.</source>
        <translation>Um programa que terminou deixou o banco de dados %1 no meio de uma alteração. Ele poderá ser lido de novo quando alguém que pode gravá-lo o abrir uma vez.</translation>
    </message>
    <message>
        <source>The database %1 can be read, but not changed: %2.</source>
        <translation>O banco de dados %1 pode ser lido, mas não alterado: %2.</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be read: %2.</source>
        <translation>O diretório do banco de dados %1 não pode ser lido: %2.</translation>
    </message>
    <message>
        <source>The database directory %1 does not exist.</source>
        <translation>O diretório do banco de dados %1 não existe.</translation>
    </message>
    <message>
        <source>The database directory %1 is not a directory: a part of it is a file.</source>
        <translation>O diretório do banco de dados %1 não é um diretório: uma parte dele é um arquivo.</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be reached: %2.</source>
        <translation>O diretório do banco de dados %1 não pode ser acessado: %2.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 não é um arquivo.</translation>
    </message>
    <message>
        <source>The database %1 is empty: its content was lost. It is left as it is; restore a backup copy, or delete it to start over.</source>
        <translation>O banco de dados %1 está vazio: seu conteúdo foi perdido. Ele é deixado como está; coloque uma cópia no lugar ou remova-o para recomeçar.</translation>
    </message>
    <message>
        <source>The file %1 is not a database (too short). It is left as it is.</source>
        <translation>O arquivo %1 não é um banco de dados (curto demais). Ele é deixado como está.</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached: it is a link to %2 (%3). Is the drive or the share that it is on connected?</source>
        <translation>O banco de dados %1 não pode ser acessado: é um link para %2 (%3). A unidade ou o compartilhamento em que ele está foi conectado?</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached (%2). Is the drive or the share that it is on connected?</source>
        <translation>O banco de dados %1 não pode ser acessado (%2). A unidade ou o compartilhamento em que ele está foi conectado?</translation>
    </message>
    <message>
        <source>There is no database %1, but %2, which a program left that was writing it. Put the database back, or move that file to another directory to begin with an empty database.</source>
        <translation>O banco de dados %1 não existe, mas existe %2, deixado por um programa que o gravava. Coloque o banco de dados de volta ou mova esse arquivo para outro diretório para começar com um banco de dados vazio.</translation>
    </message>
    <message>
        <source>The database directory %1 holds no database, and none can be created: %2.</source>
        <translation>O diretório %1 não contém banco de dados, e nenhum pode ser criado: %2.</translation>
    </message>
    <message>
        <source>The database %1 is damaged (its end is missing). It is left as it is.</source>
        <translation>O banco de dados %1 está danificado (falta o final). Ele é deixado como está.</translation>
    </message>
    <message>
        <source>The database %1 cannot be created: %2.</source>
        <translation>O banco de dados %1 não pode ser criado: %2.</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>O banco de dados %1 foi substituído ou removido por outro programa enquanto estava em uso. Nada foi alterado: veja os dispositivos que existem agora e tente de novo.</translation>
    </message>
    <message>
        <source>%1 Whether the change was stored cannot be read: look at the devices before you try again.</source>
        <translation>%1 Não é possível ler se a alteração foi salva: veja os dispositivos antes de tentar de novo.</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while a change was stored, which is lost: look at the devices that are there now, then try again.</source>
        <translation>O banco de dados %1 foi substituído ou removido por outro programa enquanto uma alteração era salva, e ela se perdeu: veja os dispositivos que existem agora e tente de novo.</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its texts are %2, not UTF-8. It is left as it is.</source>
        <translation>O banco de dados %1 foi alterado por outro programa: seus textos são %2, não UTF-8. Ele é deixado como está.</translation>
    </message>
    <message>
        <source>The file %1 is a database of another program. It is left as it is.</source>
        <translation>O arquivo %1 é um banco de dados de outro programa. Ele é deixado como está.</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer program (its schema is %2, this program knows up to %3). It is left as it is.</source>
        <translation>O banco de dados %1 foi gravado por um programa mais novo (seu esquema é %2; este programa conhece até %3). Ele é deixado como está.</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its tables are not those of schema %2. It is left as it is.</source>
        <translation>O banco de dados %1 foi alterado por outro programa: suas tabelas não são as do esquema %2. Ele é deixado como está.</translation>
    </message>
    <message>
        <source>The database in %1 is damaged: %2</source>
        <translation>O banco de dados em %1 está danificado: %2</translation>
    </message>
    <message>
        <source>The database server %1 did not answer in time.</source>
        <translation>O servidor de banco de dados %1 não respondeu a tempo.</translation>
    </message>
    <message>
        <source>The database server %1 cannot be reached: %2.</source>
        <translation>O servidor de banco de dados %1 não pode ser acessado: %2.</translation>
    </message>
    <message>
        <source>The database server %1 refused: %2.</source>
        <translation>O servidor de banco de dados %1 recusou: %2.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 does not allow that to the login %3: its administrator can grant the role %4 or %5.</source>
        <translation>O banco de dados %1 no servidor %2 não permite isso ao login %3: seu administrador pode conceder o papel %4 ou %5.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 has no schema %3 for devices: its administrator can make it with &quot;gfpdb server sql&quot;.</source>
        <translation>O banco de dados %1 no servidor %2 não tem o esquema %3 para dispositivos: seu administrador pode criá-lo com “gfpdb server sql”.</translation>
    </message>
    <message>
        <source>There is no room for the change on the server %1.</source>
        <translation>Não há espaço para a alteração no servidor %1.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is locked by another program.</source>
        <translation>O banco de dados %1 no servidor %2 está bloqueado por outro programa.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is changed by too many programs now: try again.</source>
        <translation>Programas demais estão alterando o banco de dados %1 no servidor %2 agora: tente de novo.</translation>
    </message>
    <message>
        <source>The directory %1 has the database %2 and names a server in %3. Move the database to another directory, and copy its records from there to the server with &quot;gfpdb copy&quot;.</source>
        <translation>O diretório %1 tem o banco de dados %2 e cita um servidor em %3. Mova o banco de dados para outro diretório e copie de lá seus registros para o servidor com “gfpdb copy”.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 cannot be read by the login %3: its administrator can grant the role %4.</source>
        <translation>O login %3 não pode ler o banco de dados %1 no servidor %2: seu administrador pode conceder o papel %4.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the server takes no changes now.</source>
        <translation>O banco de dados %1 no servidor %2 pode ser lido, mas não alterado: o servidor não aceita alterações agora.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the login %3 has not the role %4.</source>
        <translation>O banco de dados %1 no servidor %2 pode ser lido, mas não alterado: o login %3 não tem o papel %4.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by a newer program (schema %3). It is left as it is.</source>
        <translation>O banco de dados %1 no servidor %2 foi gravado por um programa mais novo (esquema %3). Ele é deixado como está.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is a database of another program. It is left as it is.</source>
        <translation>O banco de dados %1 no servidor %2 é de outro programa. Ele é deixado como está.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by an older program (schema %3): it can be used when someone with the role %4 has opened it once.</source>
        <translation>O banco de dados %1 no servidor %2 foi gravado por um programa mais antigo (esquema %3): poderá ser usado quando alguém com o papel %4 o abrir uma vez.</translation>
    </message>
    <message>
        <source>The file %1 names a server since the directory was opened: open it again.</source>
        <translation>O arquivo %1 indica um servidor desde que o diretório foi aberto: abra-o novamente.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Fabricante</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Capacidade</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>Dies</translation>
    </message>
    <message>
        <source>Dies are selected by C2</source>
        <translation>Seleção de dies por C2</translation>
    </message>
    <message>
        <source>Page size (bytes)</source>
        <translation>Tamanho da página (bytes)</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>Bytes de endereço</translation>
    </message>
    <message>
        <source>4-byte addressing, enter</source>
        <translation>Endereçamento de 4 bytes, entrar</translation>
    </message>
    <message>
        <source>4-byte addressing, leave</source>
        <translation>Endereçamento de 4 bytes, sair</translation>
    </message>
    <message>
        <source>4-byte addressing, register and bit</source>
        <translation>Endereçamento de 4 bytes, registrador e bit</translation>
    </message>
    <message>
        <source>Quad enable</source>
        <translation>Habilitação Quad</translation>
    </message>
    <message>
        <source>Unlock blocks</source>
        <translation>Desbloquear blocos</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reinicialização</translation>
    </message>
    <message>
        <source>Busy is read by</source>
        <translation>Ocupado é lido por</translation>
    </message>
    <message>
        <source>Dummy clocks, single</source>
        <translation>Ciclos dummy, Single</translation>
    </message>
    <message>
        <source>Quad read</source>
        <translation>Leitura Quad</translation>
    </message>
    <message>
        <source>Dummy clocks, quad</source>
        <translation>Ciclos dummy, Quad</translation>
    </message>
    <message>
        <source>Quad program</source>
        <translation>Programação Quad</translation>
    </message>
    <message>
        <source>Page program, longest wait (us)</source>
        <translation>Programação de página, espera máxima (us)</translation>
    </message>
    <message>
        <source>Erase, longest wait (ms)</source>
        <translation>Apagamento, espera máxima (ms)</translation>
    </message>
    <message>
        <source>from the ID</source>
        <translation>pelo ID</translation>
    </message>
    <message>
        <source>from the density</source>
        <translation>pela capacidade</translation>
    </message>
    <message>
        <source>assumed</source>
        <translation>presumido</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>inserido</translation>
    </message>
    <message>
        <source>The command is on four lines, but the single-I/O flow has one.</source>
        <translation>O comando usa quatro linhas, mas o fluxo Single I/O tem uma.</translation>
    </message>
    <message>
        <source>The image is compared with a mask: its bytes with bits that the mask clears never match.</source>
        <translation>A imagem é comparada com uma máscara: os bytes com bits que a máscara apaga nunca coincidem.</translation>
    </message>
    <message>
        <source>The expected data have bits that the mask clears: they never match.</source>
        <translation>Os dados esperados têm bits que a máscara apaga: nunca coincidem.</translation>
    </message>
    <message>
        <source>The mask has no bit: whatever is read matches.</source>
        <translation>A máscara não tem nenhum bit: tudo o que é lido coincide.</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: what is beyond the end of a page overwrites its start.</source>
        <translation>O tamanho de página é %1, mas o dispositivo tem páginas de %2 bytes: o que passa do fim de uma página sobrescreve o início dela.</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: programming takes longer than necessary.</source>
        <translation>O tamanho de página é %1, mas o dispositivo tem páginas de %2 bytes: a programação demora mais do que o necessário.</translation>
    </message>
    <message>
        <source>Data are changed in an operation that is also executed when the user asked for neither Program nor Erase.</source>
        <translation>Os dados são alterados em uma operação que também é executada quando o usuário não pediu nem Program nem Erase.</translation>
    </message>
    <message>
        <source>Three address bytes reach %1 bytes, but the action works on %2.</source>
        <translation>Três bytes de endereço alcançam %1 bytes, mas a ação abrange %2.</translation>
    </message>
    <message>
        <source>The command does not have the bus width %1. Allowed: %2.</source>
        <translation>O comando não tem a largura de barramento %1. Permitido: %2.</translation>
    </message>
    <message>
        <source>This is a command that programs.</source>
        <translation>Este é um comando que programa.</translation>
    </message>
    <message>
        <source>This is a command that reads data.</source>
        <translation>Este é um comando que lê dados.</translation>
    </message>
    <message>
        <source>This is a command that erases.</source>
        <translation>Este é um comando que apaga.</translation>
    </message>
    <message>
        <source>The command has no dummy clocks.</source>
        <translation>O comando não tem ciclos dummy.</translation>
    </message>
    <message>
        <source>The command has two dummy clocks at least, its mode clocks.</source>
        <translation>O comando tem pelo menos dois ciclos dummy, seus ciclos de modo.</translation>
    </message>
    <message>
        <source>Nothing in the loop depends on its step: every step does the same.</source>
        <translation>Nada no laço depende do passo: todos os passos fazem o mesmo.</translation>
    </message>
    <message>
        <source>The device has one die: the loop has one step.</source>
        <translation>O dispositivo tem um die: o laço tem um passo.</translation>
    </message>
    <message>
        <source>There is no ID check: the flow changes whatever chip is connected.</source>
        <translation>O ID não é verificado: o fluxo altera qualquer chip que esteja conectado.</translation>
    </message>
    <message>
        <source>The chip is changed before its ID is checked.</source>
        <translation>O chip é alterado antes que seu ID seja verificado.</translation>
    </message>
    <message>
        <source>4-byte addressing is entered here, and Termination does not leave it.</source>
        <translation>Aqui se entra no endereçamento de 4 bytes, e Termination não sai dele.</translation>
    </message>
    <message>
        <source>No command uses this write enable.</source>
        <translation>Nenhum comando usa esta habilitação de escrita.</translation>
    </message>
    <message>
        <source>The chip is in deep power-down and ignores the command.</source>
        <translation>O chip está em deep power-down e ignora o comando.</translation>
    </message>
    <message>
        <source>The command follows the reset that brings the chip to its end.</source>
        <translation>O comando vem depois do reset que deixa o chip em seu estado final.</translation>
    </message>
    <message>
        <source>The command is on four lines, and nothing before it sets or checks the quad-enable bit.</source>
        <translation>O comando usa quatro linhas, e nada antes dele ativa ou verifica o bit quad enable.</translation>
    </message>
    <message>
        <source>%1 us are waited for instead of asking whether the chip is ready.</source>
        <translation>São esperados %1 µs em vez de perguntar se o chip está pronto.</translation>
    </message>
    <message>
        <source>Nothing waits until the chip is ready: it ignores the commands that follow.</source>
        <translation>Nada espera até que o chip esteja pronto: ele ignora os comandos seguintes.</translation>
    </message>
    <message>
        <source>There is no write enable before it: the chip ignores the command.</source>
        <translation>Não há habilitação de escrita antes: o chip ignora o comando.</translation>
    </message>
    <message>
        <source>The command has no address, but the action sends one.</source>
        <translation>O comando não tem endereço, mas a ação envia um.</translation>
    </message>
    <message>
        <source>The command has an address, but the action sends none.</source>
        <translation>O comando tem endereço, mas a ação não envia nenhum.</translation>
    </message>
    <message>
        <source>The command always has four address bytes, but the action sends three.</source>
        <translation>O comando sempre tem quatro bytes de endereço, mas a ação envia três.</translation>
    </message>
    <message>
        <source>The action sends four address bytes, but nothing before it enters 4-byte addressing.</source>
        <translation>A ação envia quatro bytes de endereço, mas nada antes dela entra no endereçamento de 4 bytes.</translation>
    </message>
    <message>
        <source>The action sends three address bytes, but 4-byte addressing was entered before.</source>
        <translation>A ação envia três bytes de endereço, mas antes se entrou no endereçamento de 4 bytes.</translation>
    </message>
    <message>
        <source>Template name</source>
        <translation>Nome do modelo</translation>
    </message>
    <message>
        <source>Flow template</source>
        <translation>Modelo de fluxo</translation>
    </message>
    <message>
        <source>an unpaired surrogate is not a character</source>
        <translation>um substituto sem par não é um caractere</translation>
    </message>
    <message>
        <source>the name %1 occurs twice</source>
        <translation>o nome %1 aparece duas vezes</translation>
    </message>
    <message>
        <source>values are nested too deeply</source>
        <translation>os valores estão aninhados demais</translation>
    </message>
    <message>
        <source>there is text after the end</source>
        <translation>há texto depois do fim</translation>
    </message>
    <message>
        <source>an object needs a name in double quotes here</source>
        <translation>aqui um objeto precisa de um nome entre aspas duplas</translation>
    </message>
    <message>
        <source>&quot;:&quot; is missing after %1</source>
        <translation>falta “:” depois de %1</translation>
    </message>
    <message>
        <source>an object needs &quot;,&quot; or &quot;}&quot; here</source>
        <translation>aqui um objeto precisa de “,” ou “}”</translation>
    </message>
    <message>
        <source>a list needs &quot;,&quot; or &quot;]&quot; here</source>
        <translation>aqui uma lista precisa de “,” ou “]”</translation>
    </message>
    <message>
        <source>\u needs four hexadecimal digits</source>
        <translation>\u precisa de quatro dígitos hexadecimais</translation>
    </message>
    <message>
        <source>a string is not terminated</source>
        <translation>uma string não está terminada</translation>
    </message>
    <message>
        <source>there is no such escape</source>
        <translation>essa sequência de escape não existe</translation>
    </message>
    <message>
        <source>a string has a control character or a line break in it</source>
        <translation>uma string contém um caractere de controle ou uma quebra de linha</translation>
    </message>
    <message>
        <source>a string is not UTF-8</source>
        <translation>uma string não é UTF-8</translation>
    </message>
    <message>
        <source>a number is too large</source>
        <translation>um número é grande demais</translation>
    </message>
    <message>
        <source>a value was expected</source>
        <translation>esperava-se um valor</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ou false</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>um número</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>uma string</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>uma lista</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>um objeto</translation>
    </message>
    <message>
        <source>A string was expected, but this is %1.</source>
        <translation>Esperava-se uma string, mas isto é: %1.</translation>
    </message>
    <message>
        <source>A list was expected, but this is %1.</source>
        <translation>Esperava-se uma lista, mas isto é: %1.</translation>
    </message>
    <message>
        <source>An object was expected, but this is %1.</source>
        <translation>Esperava-se um objeto, mas isto é: %1.</translation>
    </message>
    <message>
        <source>%1 is not known here. Allowed: %2.</source>
        <translation>%1 não é conhecido aqui. Permitido: %2.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>Falta %1.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>O catálogo %1 não pode ser lido: %2.</translation>
    </message>
    <message>
        <source>device %1: %2</source>
        <translation>dispositivo %1: %2</translation>
    </message>
    <message>
        <source>stored template %1: %2</source>
        <translation>modelo salvo %1: %2</translation>
    </message>
    <message>
        <source>The device %1 is already in %2.</source>
        <translation>O dispositivo %1 já está em %2.</translation>
    </message>
    <message>
        <source>The stored template %1 is already in %2.</source>
        <translation>O modelo salvo %1 já está em %2.</translation>
    </message>
    <message>
        <source>The device %1 exists with different content: --replace replaces it.</source>
        <translation>O dispositivo %1 existe com outro conteúdo: --replace o substitui.</translation>
    </message>
    <message>
        <source>The stored template %1 exists with different content: --replace replaces it.</source>
        <translation>O modelo salvo %1 existe com outro conteúdo: --replace o substitui.</translation>
    </message>
    <message>
        <source>The name of the device %1 is that of a stored template.</source>
        <translation>O nome do dispositivo %1 é o de um modelo salvo.</translation>
    </message>
    <message>
        <source>The name of the stored template %1 is that of a device.</source>
        <translation>O nome do modelo salvo %1 é o de um dispositivo.</translation>
    </message>
    <message>
        <source>The column is missing.</source>
        <translation>A coluna está faltando.</translation>
    </message>
    <message>
        <source>The column is not known. Allowed: %1.</source>
        <translation>A coluna não é conhecida. Permitido: %1.</translation>
    </message>
    <message>
        <source>The column occurs twice.</source>
        <translation>A coluna aparece duas vezes.</translation>
    </message>
    <message>
        <source>A quote that opens in this row is never closed.</source>
        <translation>Uma aspa aberta nesta linha nunca é fechada.</translation>
    </message>
    <message>
        <source>The row has 1 cell, the line of column names has %1.</source>
        <translation>A linha tem 1 célula, a dos nomes das colunas tem %1.</translation>
    </message>
    <message>
        <source>The row has %1 cells, the line of column names has %2.</source>
        <translation>A linha tem %1 células, a dos nomes das colunas tem %2.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>O arquivo não pode ser lido: %1.</translation>
    </message>
    <message>
        <source>This is not valid JSON: %1.</source>
        <translation>Isto não é JSON válido: %1.</translation>
    </message>
    <message>
        <source>This is not a file of records. Allowed: %1.</source>
        <translation>Isto não é um arquivo de registros. Permitido: %1.</translation>
    </message>
    <message>
        <source>This version of the format is not known. Allowed: %1.</source>
        <translation>Esta versão do formato não é conhecida. Permitido: %1.</translation>
    </message>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>O texto não é UTF-8.</translation>
    </message>
    <message>
        <source>A whole number or null was expected, but this is %1.</source>
        <translation>Esperava-se um número inteiro ou null, mas isto é: %1.</translation>
    </message>
    <message>
        <source>device family</source>
        <translation>família de dispositivos</translation>
    </message>
    <message>
        <source>configuration mode</source>
        <translation>modo de configuração</translation>
    </message>
    <message>
        <source>single-I/O flow</source>
        <translation>fluxo Single I/O</translation>
    </message>
    <message>
        <source>quad-I/O flow</source>
        <translation>fluxo Quad I/O</translation>
    </message>
    <message>
        <source>This operation occurs twice.</source>
        <translation>Esta operação aparece duas vezes.</translation>
    </message>
    <message>
        <source>There is no such operation. Allowed: %1.</source>
        <translation>Essa operação não existe. Permitido: %1.</translation>
    </message>
    <message>
        <source>There is no such action. Allowed: %1.</source>
        <translation>Essa ação não existe. Permitido: %1.</translation>
    </message>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>Os fluxos de %1 não podem ser lidos.</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: the copy gets these, and its flow has the %2 of %3.</source>
        <translation>Um dispositivo tem no máximo %1 ciclos dummy Single I/O: a cópia recebe estes, e seu fluxo tem os %2 de %3.</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no serial flash devices.</source>
        <translation>O modo de configuração %1 não tem dispositivos flash seriais.</translation>
    </message>
    <message>
        <source>page size</source>
        <translation>tamanho da página</translation>
    </message>
    <message>
        <source>quad-I/O dummy clocks</source>
        <translation>ciclos dummy Quad I/O</translation>
    </message>
    <message>
        <source>%1: %2 in the list, %3 by %4</source>
        <translation>%1: %2 na lista, %3 segundo %4</translation>
    </message>
    <message>
        <source>address bytes</source>
        <translation>bytes de endereço</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>erase by %1</source>
        <translation>apagamento com %1</translation>
    </message>
    <message>
        <source>not</source>
        <translation>não</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>reservado</translation>
    </message>
    <message>
        <source>quad enable</source>
        <translation>habilitação Quad</translation>
    </message>
    <message>
        <source>basic table: %1 double words in read-outs of this part, %2 here</source>
        <translation>tabela básica: %1 palavras duplas nas leituras deste componente, aqui %2</translation>
    </message>
    <message>
        <source>4-4-4 read: in read-outs of this part, but not here</source>
        <translation>leitura 4-4-4: nas leituras deste componente, mas não aqui</translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 não é um número.</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3 are allowed.</source>
        <translation>%1 está fora do intervalo: são permitidos de %2 a %3.</translation>
    </message>
    <message>
        <source>%1 is more than 32Gb.</source>
        <translation>%1 é mais que 32Gb.</translation>
    </message>
    <message>
        <source>%1 is not a density such as 128Mb.</source>
        <translation>%1 não é uma capacidade como 128Mb.</translation>
    </message>
    <message>
        <source>%1 is neither an erase command such as %2 nor %3.</source>
        <translation>%1 não é um comando de apagamento como %2 nem %3.</translation>
    </message>
    <message>
        <source>%1 is not a power of two.</source>
        <translation>%1 não é uma potência de dois.</translation>
    </message>
    <message>
        <source>There is no value %1.</source>
        <translation>O valor %1 não existe.</translation>
    </message>
    <message>
        <source>The value %1 is missing: enter it.</source>
        <translation>Falta o valor %1: informe-o.</translation>
    </message>
    <message>
        <source>The number of dies, %1, does not divide the density.</source>
        <translation>O número de dies, %1, não divide a capacidade.</translation>
    </message>
    <message>
        <source>The erase command %1 does not divide the density.</source>
        <translation>O comando de apagamento %1 não divide a capacidade.</translation>
    </message>
    <message>
        <source>The density %1 (%2) is not what the ID usually stands for, which is %3.</source>
        <translation>A capacidade %1 (%2) não é a que o ID costuma indicar, que é %3.</translation>
    </message>
    <message>
        <source>SFDP DW2 says a density that no device can have: %1.</source>
        <translation>SFDP DW2 indica uma capacidade que nenhum dispositivo pode ter: %1.</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: it gets these, and its flow has %2.</source>
        <translation>Um dispositivo tem no máximo %1 ciclos dummy Single I/O: recebe estes, e seu fluxo tem %2.</translation>
    </message>
    <message>
        <source>The chip has a table of the maker %1, and its ID is of the maker %2.</source>
        <translation>O chip tem uma tabela do fabricante %1, e seu ID é do fabricante %2.</translation>
    </message>
    <message>
        <source>No listed part tells what the maker&apos;s parts have in common: usual commands are assumed.</source>
        <translation>Nenhum componente da lista diz o que os do fabricante têm em comum: supõem-se os comandos usuais.</translation>
    </message>
    <message>
        <source>Several listed parts have this ID: %1.</source>
        <translation>Vários componentes da lista têm este ID: %1.</translation>
    </message>
    <message>
        <source>The commands have four address bytes, and nothing enters 4-byte addressing.</source>
        <translation>Os comandos têm quatro bytes de endereço, e nada entra no endereçamento de 4 bytes.</translation>
    </message>
    <message>
        <source>The commands have three address bytes, and the device is in 4-byte addressing.</source>
        <translation>Os comandos têm três bytes de endereço, e o dispositivo está em endereçamento de 4 bytes.</translation>
    </message>
    <message>
        <source>Three address bytes do not reach all of %1.</source>
        <translation>Três bytes de endereço não alcançam tudo: %1.</translation>
    </message>
    <message>
        <source>SFDP DW1 lists three address bytes alone, which do not reach all of %1: four are taken.</source>
        <translation>SFDP DW1 indica só três bytes de endereço, que não alcançam todo o %1: usam-se quatro.</translation>
    </message>
    <message>
        <source>SFDP DW16 lists every way into 4-byte addressing, and SFDP DW1 three address bytes: DW16 is ignored.</source>
        <translation>SFDP DW16 indica todas as formas de entrar no endereçamento de 4 bytes, e SFDP DW1 três bytes de endereço: DW16 é ignorado.</translation>
    </message>
    <message>
        <source>SFDP DW16 lists no way into 4-byte addressing that a flow can take: %1 is taken.</source>
        <translation>SFDP DW16 não indica forma de entrar no endereçamento de 4 bytes que um fluxo possa usar: usa-se %1.</translation>
    </message>
    <message>
        <source>SFDP has no page size: %1 is taken (%2).</source>
        <translation>SFDP não tem tamanho da página: usa-se %1 (%2).</translation>
    </message>
    <message>
        <source>SFDP DW11 has a page size that no flow can have: %1 is taken (%2).</source>
        <translation>SFDP DW11 tem um tamanho da página que nenhum fluxo pode ter: usa-se %1 (%2).</translation>
    </message>
    <message>
        <source>SFDP DW15 says with a reserved value how quad is enabled: look it up and enter it.</source>
        <translation>SFDP DW15 indica com um valor reservado como habilitar Quad: procure e informe.</translation>
    </message>
    <message>
        <source>SFDP does not say how quad is enabled: %1 is taken (%2).</source>
        <translation>SFDP não diz como habilitar Quad: usa-se %1 (%2).</translation>
    </message>
    <message>
        <source>SFDP lists no read on four lines: the quad-I/O flow uses one.</source>
        <translation>SFDP não indica leitura em quatro linhas: o fluxo Quad I/O usa uma.</translation>
    </message>
    <message>
        <source>No erase command serves the whole part: the chip is erased at once.</source>
        <translation>Nenhum comando de apagamento serve para todo o componente: o chip é apagado de uma vez.</translation>
    </message>
    <message>
        <source>The four bytes of each double word are in reverse order.</source>
        <translation>Os quatro bytes de cada palavra dupla estão em ordem inversa.</translation>
    </message>
    <message>
        <source>The bytes do not begin with the signature &quot;SFDP&quot;.</source>
        <translation>Os bytes não começam com a assinatura “SFDP”.</translation>
    </message>
    <message>
        <source>The signature &quot;SFDP&quot; is at %1 and not at the start: bytes were added before it.</source>
        <translation>A assinatura “SFDP” está em %1 e não no início: bytes foram acrescentados antes.</translation>
    </message>
    <message>
        <source>The read-out ends within the SFDP header.</source>
        <translation>A leitura termina dentro do cabeçalho SFDP.</translation>
    </message>
    <message>
        <source>SFDP revision %1 is unknown: revisions 1.x can be read.</source>
        <translation>A revisão SFDP %1 é desconhecida: as revisões 1.x podem ser lidas.</translation>
    </message>
    <message>
        <source>%1 has the unknown revision %2: it is not read.</source>
        <translation>Revisão %2 desconhecida desta tabela, que não é lida: %1.</translation>
    </message>
    <message>
        <source>There are %1 headers of %2: the one of revision %3 is taken.</source>
        <translation>Cabeçalhos desta tabela (%2): %1. Usa-se o da revisão %3.</translation>
    </message>
    <message>
        <source>The read-out ends within the parameter headers: %1 of %2 are there.</source>
        <translation>A leitura termina dentro dos cabeçalhos de parâmetros: há %1 de %2.</translation>
    </message>
    <message>
        <source>A table begins at %1: there is room for %2 parameter headers, not for %3.</source>
        <translation>Uma tabela começa em %1: há espaço para %2 cabeçalhos de parâmetros, não para %3.</translation>
    </message>
    <message>
        <source>The parameter header at %1 is blank.</source>
        <translation>O cabeçalho de parâmetros em %1 está vazio.</translation>
    </message>
    <message>
        <source>%1 begins at %2, within the headers: it is not read.</source>
        <translation>Esta tabela começa em %2, dentro dos cabeçalhos, e não é lida: %1.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>Esta tabela está vazia: %1.</translation>
    </message>
    <message>
        <source>%1 is not in the read-out: it begins at %2, and the read-out ends at %3.</source>
        <translation>Esta tabela não está na leitura: %1. Começa em %2, e a leitura termina em %3.</translation>
    </message>
    <message>
        <source>The read-out ends within %1: %2 of %3 double words are there.</source>
        <translation>A leitura termina dentro desta tabela: %1. Há %2 de %3 palavras duplas.</translation>
    </message>
    <message>
        <source>%1 begins at %2, which is not a multiple of 4.</source>
        <translation>Esta tabela começa em %2, que não é múltiplo de 4: %1.</translation>
    </message>
    <message>
        <source>%1 and %2 overlap.</source>
        <translation>Estas tabelas se sobrepõem: %1, %2.</translation>
    </message>
    <message>
        <source>The bytes at %1 are in no table: they are not read.</source>
        <translation>Os bytes em %1 não estão em nenhuma tabela: não são lidos.</translation>
    </message>
    <message>
        <source>There is no basic table.</source>
        <translation>Não há tabela básica.</translation>
    </message>
    <message>
        <source>The basic table is blank.</source>
        <translation>A tabela básica está vazia.</translation>
    </message>
    <message>
        <source>The basic table has %1 double words: %2 belong to its revision %3.</source>
        <translation>A tabela básica tem %1 palavras duplas: à revisão %3 correspondem %2.</translation>
    </message>
    <message>
        <source>SFDP DW%1 has zeros where every part has ones: bytes may be missing or shifted.</source>
        <translation>SFDP DW%1 tem zeros onde todo componente tem uns: podem faltar bytes ou estar deslocados.</translation>
    </message>
    <message>
        <source>SFDP DW2 says no density that a part can have: %1.</source>
        <translation>SFDP DW2 não indica uma capacidade que um componente possa ter: %1.</translation>
    </message>
    <message>
        <source>SFDP DW1 says with a reserved value how many address bytes there are.</source>
        <translation>SFDP DW1 indica com um valor reservado quantos bytes de endereço há.</translation>
    </message>
    <message>
        <source>SFDP DW%1 lists the %2 read, and DW%3 has no command for it.</source>
        <translation>SFDP DW%1 indica a leitura %2, e DW%3 não tem comando para ela.</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 has no command: it is left out.</source>
        <translation>SFDP DW%1: o tipo de apagamento %2 não tem comando: é omitido.</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 erases 2^%3 bytes, which is too much: it is left out.</source>
        <translation>SFDP DW%1: o tipo de apagamento %2 apaga 2^%3 bytes, o que é demais: é omitido.</translation>
    </message>
    <message>
        <source>SFDP DW1 erases 4 KiB by %1, which no erase type does.</source>
        <translation>SFDP DW1 apaga 4 KiB com %1, o que nenhum tipo de apagamento faz.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions is blank.</source>
        <translation>A tabela de instruções de 4 bytes está vazia.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions has no erase commands.</source>
        <translation>A tabela de instruções de 4 bytes não tem comandos de apagamento.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1, which the basic table does not have.</source>
        <translation>A tabela de instruções de 4 bytes indica o tipo de apagamento %1, que a tabela básica não tem.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1 and has no command for it.</source>
        <translation>A tabela de instruções de 4 bytes indica o tipo de apagamento %1 e não tem comando para ele.</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 come to %2 bytes, and the part has %3.</source>
        <translation>Os setores do mapa de setores %1 somam %2 bytes, e o componente tem %3.</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 are erased by types that the basic table does not have.</source>
        <translation>Os setores do mapa de setores %1 são apagados por tipos que a tabela básica não tem.</translation>
    </message>
    <message>
        <source>The sector map has no end.</source>
        <translation>O mapa de setores não tem fim.</translation>
    </message>
    <message>
        <source>the basic table</source>
        <translation>tabela básica</translation>
    </message>
    <message>
        <source>the sector map</source>
        <translation>mapa de setores</translation>
    </message>
    <message>
        <source>the table of 4-byte instructions</source>
        <translation>tabela de instruções de 4 bytes</translation>
    </message>
    <message>
        <source>the table %1</source>
        <translation>tabela %1</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was replaced by another one while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>O banco de dados %1 no servidor %2 foi substituído por outro durante o uso. Nada foi alterado: veja os dispositivos que há agora e tente de novo.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is another one now.</source>
        <translation>O banco de dados %1 no servidor %2 agora é outro.</translation>
    </message>
    <message>
        <source>the certificates %1 are not a file</source>
        <translation>os certificados %1 não são um arquivo</translation>
    </message>
    <message>
        <source>no reason</source>
        <translation>sem motivo</translation>
    </message>
    <message>
        <source>the connection is closed</source>
        <translation>a conexão está fechada</translation>
    </message>
    <message>
        <source>The server does not copy.</source>
        <translation>O servidor não copia.</translation>
    </message>
    <message>
        <source>%1 is not a setting</source>
        <translation>%1 não é uma configuração</translation>
    </message>
    <message>
        <source>passwords do not belong into it: put them into the file .pgpass in your home directory</source>
        <translation>senhas não pertencem aí: coloque-as no arquivo .pgpass do seu diretório pessoal</translation>
    </message>
    <message>
        <source>%1 is not a setting. There are: %2</source>
        <translation>%1 não é uma configuração. Há: %2</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 aparece duas vezes</translation>
    </message>
    <message>
        <source>%1 cannot be %2</source>
        <translation>%1 não pode ser %2</translation>
    </message>
    <message>
        <source>it does not begin with %1</source>
        <translation>não começa com %1</translation>
    </message>
    <message>
        <source>it has no settings</source>
        <translation>não tem configurações</translation>
    </message>
    <message>
        <source>it names too many hosts</source>
        <translation>há hosts demais</translation>
    </message>
    <message>
        <source>&quot;port&quot; must be one for all hosts, or one for each</source>
        <translation>“port” deve ser um para todos os hosts, ou um para cada</translation>
    </message>
    <message>
        <source>it does not say which &quot;database&quot; is meant</source>
        <translation>não diz qual “database” se quer</translation>
    </message>
    <message>
        <source>The settings of the server cannot be used: %1.</source>
        <translation>As configurações do servidor não podem ser usadas: %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be used: %2.</source>
        <translation>O arquivo %1 não pode ser usado: %2.</translation>
    </message>
    <message>
        <source>The directory has the database %1: name the server in another directory, and copy the records there with &quot;gfpdb copy&quot;.</source>
        <translation>O diretório tem o banco de dados %1: indique o servidor em outro diretório e copie os registros para lá com “gfpdb copy”.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>O arquivo %1 não pode ser gravado: %2.</translation>
    </message>
    <message>
        <source>The database cannot keep %1 of %2: it is not a text in UTF-8, or has the character NUL.</source>
        <translation>O banco de dados não pode guardar %1 de %2: não é um texto em UTF-8 ou contém o caractere NUL.</translation>
    </message>
    <message>
        <source>The device %1 is being changed by another program: try again.</source>
        <translation>O dispositivo %1 está sendo alterado por outro programa: tente de novo.</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>A importação foi cancelada.</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>não é um arquivo comum</translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>ele tem mais de %1</translation>
    </message>
    <message>
        <source>The command is on four lines, and a write of the status registers before it clears the quad-enable bit.</source>
        <translation>O comando usa quatro linhas, e antes dele uma escrita dos registradores de status limpa o bit quad enable.</translation>
    </message>
</context>
</TS>
