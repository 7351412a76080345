// SPDX-License-Identifier: MIT

// What a reader makes of each field of the tables, of tables that are longer, shorter or newer than usual, and of those
// that contradict themselves.
#include "sfdp_facts.h"
#include "test_rows.h"

#include <QRegularExpression>
#include <QTest>

namespace {

// A 128 Mb part with all three tables that are read: a basic one of revision 1.7, 4-byte instructions, and a sector map
// with two configurations.
constexpr std::uint32_t HEADER[] = {0x50444653, 0xFF020108, 0x14010700, 0xFF000030, 0x02010084, 0xFF000080,
                                    0x07010081, 0xFF000088, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF};
constexpr std::uint32_t BASIC[] = {0xFFF120E5, 0x07FFFFFF, 0x6B08EB44, 0xBB423B08, 0xFFFFFFEE, 0xFF00FFFF, 0xFF00FFFF,
                                   0x520F200C, 0xFF00D810, 0x00A60233, 0xD914E781, 0x337663E9, 0x757A757A, 0x5CD5BDF7,
                                   0xFF5DF719, 0xA5F970E9, 0x00000000, 0x00000000, 0x00000000, 0xFFFFFFFF};
constexpr std::uint32_t FOUR_BYTE[] = {0xFFF00AFF, 0xFFDCFF21};
constexpr std::uint32_t MAP[] = {0x08486500, 0x00000004, 0x00010002, 0x0000FF07, 0x00FEFF07, 0x00000103, 0x00FFFF06};

template <std::size_t COUNT>
void append(SFDP_BYTES& bytes, const std::uint32_t (&dwords)[COUNT])
{
    for (const std::uint32_t dword : dwords) {
        for (int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<std::uint8_t>(dword >> shift));
    }
}

SFDP_BYTES usual_bytes()
{
    SFDP_BYTES bytes;
    append(bytes, HEADER);
    append(bytes, BASIC);
    append(bytes, FOUR_BYTE);
    append(bytes, MAP);
    return bytes;
}

// With changes such as "DW2=80000020 I1=FFFFFFFF M3=0 0B=09 end=40": double words of the three tables, bytes, and a
// cut; "front=2" are bytes in front.
SFDP_BYTES changed(const QString& changes)
{
    SFDP_BYTES bytes = usual_bytes();
    for (const QString& change : changes.split(' ', Qt::SkipEmptyParts)) {
        const QString place = change.section('=', 0, 0);
        const std::uint32_t value = change.section('=', 1).toUInt(nullptr, 16);
        const auto write = [&bytes, value](std::size_t at, int count) {
            for (int byte = 0; byte < count; ++byte)
                bytes.at(at + static_cast<std::size_t>(byte)) = static_cast<std::uint8_t>(value >> 8 * byte);
        };
        const auto number = [&place](int letters) { return place.mid(letters).toUInt() - 1; };
        if (place == "end")
            bytes.resize(value, 0xFF);
        else if (place == "front")
            bytes.insert(bytes.begin(), value, 0xFF);
        else if (place.startsWith("DW"))
            write(0x30 + 4 * number(2), 4);
        else if (place.startsWith('I'))
            write(0x80 + 4 * number(1), 4);
        else if (place.startsWith('M'))
            write(0x88 + 4 * number(1), 4);
        else
            write(place.toUInt(nullptr, 16), 1);
    }
    return bytes;
}

// What is other than usual, and the warnings; or why nothing can be read.
QString difference(const QString& changes)
{
    const SFDP_FACTS usual = facts_of(sfdp_of(usual_bytes()));
    std::string problem;
    const std::optional<GFPDB_SFDP> sfdp = gfpdb_read_sfdp(changed(changes), problem);
    if (!sfdp)
        return QString::fromStdString(problem);
    const SFDP_FACTS found = facts_of(*sfdp);
    QStringList texts;
    for (const QString& column : usual.keys()) {
        if (found[column] != usual[column])
            texts += column + ' ' + (found[column].isEmpty() ? "-" : found[column]);
    }
    for (const QString& warning : warnings_of(*sfdp))
        texts += "! " + warning;
    return texts.join("; ");
}

} // namespace

class TEST_SFDP_TABLES : public QObject
{
    Q_OBJECT

private slots:
    void usual_tables_have_all_values()
    {
        QCOMPARE(difference(""), QString());
        const SFDP_FACTS facts = facts_of(sfdp_of(usual_bytes()));
        QStringList texts;
        for (const QString& column : facts.keys())
            texts += column + ' ' + facts[column];
        QCOMPARE(
            texts.join("; "),
            QString("4bait 13 0C 3C BC 6C EC 12 34; 4bait_erase 1=21 3=DC; 4k 20; access FF; address_bytes 3; "
                    "bfpt_dwords 20; bfpt_rev 1.7; bits 134217728; busy_poll_bits 61; chip_erase_typ_ms 104000; "
                    "density 128Mb; double_rate ; enter_4b B7,EAR C5/C8,4-byte opcodes,rsvd; erase_max_factor 8; "
                    "erase_typ_ms 20:4K=64 52:32K=128 D8:64K=160; erase_types 1=20:4K 2=52:32K 3=D8:64K; exit_4b "
                    "E9,EAR C5/C8,hw reset,sw reset,power cycle,rsvd,rsvd; maps 65@4/3+8&8 0:10000/7,ff0000/7 "
                    "1:1000000/6; octal 0; page_prog_typ_us 512; page_size 256; prog_max_factor 4; qer 5; read_1_1_2 "
                    "3B:0+8; read_1_1_4 6B:0+8; read_1_1_8 ; read_1_2_2 BB:2+2; read_1_4_4 EB:2+4; read_1_8_8 ; "
                    "read_2_2_2 ; read_4_4_4 ; sfdp_rev 1.8; soft_reset_66_99 1; tables FF00 FF84 FF81"));
    }

    void a_change_changes_its_value_data()
    {
        rows<QString, QString>({
            {"4 Gb", "DW2=80000020 18=C2", "bits 4294967296; density 4096Mb; maps -; tables FF00 FF84 FFC2"},
            {"2^40 bits", "DW2=80000028 18=C2", "bits 1099511627776; density 1048576Mb; maps -; tables FF00 FF84 FFC2"},
            {"more than 2^40 bits", "DW2=80000029",
             "bits 0; density 0Mb; ! SFDP DW2 says no density that a part can have: 80000029."},
            {"one bit", "DW2=0", "bits 0; density 0Mb; ! SFDP DW2 says no density that a part can have: 00000000."},
            {"no whole Kb", "DW2=7FFFFFE",
             "bits 0; density 0Mb; ! SFDP DW2 says no density that a part can have: 07FFFFFE."},
            {"three or four address bytes", "DW1=FFF320E5", "address_bytes 3 or 4"},
            {"four address bytes", "DW1=FFF520E5", "address_bytes 4"},
            {"reserved address bytes", "DW1=FFF720E5",
             "address_bytes reserved; ! SFDP DW1 says with a reserved value how many address bytes there are."},
            {"no 4 KiB erase", "DW1=FFF120E7", "4k -"},
            {"a reserved 4 KiB erase", "DW1=FFF120E6", "4k -"},
            {"another 4 KiB erase", "DW1=FFF121E5", "4k 21; ! SFDP DW1 erases 4 KiB by 21, which no erase type does."},
            {"4 KiB erase without a command", "DW1=FFF1FFE5", "4k -"},
            {"4 KiB erase by 00", "DW1=FFF100E5", "4k -"},
            {"double rate", "DW1=FFF920E5", "double_rate 1"},
            {"no 1-1-2", "DW1=FFF020E5", "read_1_1_2 -"},
            {"no 1-2-2", "DW1=FFE120E5", "read_1_2_2 -"},
            {"no 1-4-4", "DW1=FFD120E5", "read_1_4_4 -"},
            {"no 1-1-4", "DW1=FFB120E5", "read_1_1_4 -"},
            {"zeros at the end of DW1", "DW1=7FF120E5",
             "! SFDP DW1 has zeros where every part has ones: bytes may be missing or shifted."},
            {"zeros at the start of DW1", "DW1=FFF120C5",
             "! SFDP DW1 has zeros where every part has ones: bytes may be missing or shifted."},
            {"zeros in DW5", "DW5=FFFFFF6E",
             "! SFDP DW5 has zeros where every part has ones: bytes may be missing or shifted."},
            {"zeros in DW6", "DW6=FF00FFFE",
             "! SFDP DW6 has zeros where every part has ones: bytes may be missing or shifted."},
            {"zeros in DW7", "DW7=FF00FFFE",
             "! SFDP DW7 has zeros where every part has ones: bytes may be missing or shifted."},
            {"1-4-4 with other clocks", "DW3=6B08E7BF", "read_1_4_4 E7:5+31"},
            {"1-4-4 without a command", "DW3=6B080044",
             "read_1_4_4 -; ! SFDP DW1 lists the 1-4-4 read, and DW3 has no command for it."},
            {"1-1-4 without a command", "DW3=FF08EB44",
             "read_1_1_4 -; ! SFDP DW1 lists the 1-1-4 read, and DW3 has no command for it."},
            {"1-1-2 without a command", "DW4=BB42FF08",
             "read_1_1_2 -; ! SFDP DW1 lists the 1-1-2 read, and DW4 has no command for it."},
            {"1-2-2 without a command", "DW4=00423B08",
             "read_1_2_2 -; ! SFDP DW1 lists the 1-2-2 read, and DW4 has no command for it."},
            {"1-1-4 with other clocks", "DW3=6C8AEB44", "read_1_1_4 6C:4+10"},
            {"other clocks on two lines", "DW4=BC0A3CE3", "read_1_1_2 3C:7+3; read_1_2_2 BC:0+10"},
            {"2-2-2", "DW5=FFFFFFEF DW6=BB27FFFF", "read_2_2_2 BB:1+7"},
            {"2-2-2 without a command", "DW5=FFFFFFEF",
             "! SFDP DW5 lists the 2-2-2 read, and DW6 has no command for it."},
            {"4-4-4", "DW5=FFFFFFFE DW7=EB29FFFF", "read_4_4_4 EB:1+9"},
            {"4-4-4 without a command", "DW5=FFFFFFFE DW7=0000FFFF",
             "! SFDP DW5 lists the 4-4-4 read, and DW7 has no command for it."},
            {"1-8-8 and 1-1-8", "DW17=8B08CB50", "read_1_1_8 8B:0+8; read_1_8_8 CB:2+16"},
            {"1-8-8 by FF", "DW17=0000FF50", ""},
            {"octal enable", "DW19=00E00000", "octal 6"},
            {"fourth erase type", "DW9=DC12D810",
             "erase_typ_ms 20:4K=64 52:32K=128 D8:64K=160 DC:256K=1; erase_types 1=20:4K 2=52:32K 3=D8:64K 4=DC:256K"},
            {"absent erase types", "DW8=52002000 DW1=FFF120E7 18=C2 10=C2",
             "4bait -; 4bait_erase -; 4k -; erase_typ_ms D8:64K=160; erase_types 3=D8:64K; maps -; tables FF00 FFC2 "
             "FFC2"},
            {"erase type without a command", "DW8=FF0F000C DW1=FFF120E7 18=C2 10=C2",
             "4bait -; 4bait_erase -; 4k -; erase_typ_ms D8:64K=160; erase_types 3=D8:64K; maps -; tables FF00 FFC2 "
             "FFC2; ! SFDP DW8: erase type 1 has no command: it is left out.; ! SFDP DW8: erase type 2 has no command: "
             "it is left out."},
            {"erase of the whole", "DW9=FF00C718",
             "erase_typ_ms 20:4K=64 52:32K=128 C7:16384K=160; erase_types 1=20:4K 2=52:32K 3=C7:16384K"},
            {"erase of more than the whole", "DW9=FF00C719 18=C2 10=C2",
             "4bait -; 4bait_erase -; erase_typ_ms 20:4K=64 52:32K=128; erase_types 1=20:4K 2=52:32K; maps -; tables "
             "FF00 FFC2 FFC2; ! SFDP DW9: erase type 3 erases 2^25 bytes, which is too much: it is left out."},
            {"erase of 2^32 bytes", "DW2=80000028 DW9=FF00C720 18=C2",
             "bits 1099511627776; density 1048576Mb; erase_typ_ms 20:4K=64 52:32K=128 C7:4194304K=160; erase_types "
             "1=20:4K 2=52:32K 3=C7:4194304K; maps -; tables FF00 FF84 FFC2"},
            {"shortest times of erase", "DW10=00000000", "erase_max_factor 2; erase_typ_ms 20:4K=1 52:32K=1 D8:64K=1"},
            {"longest times of erase", "DW10=FFFFFFFF DW9=DC12D810",
             "erase_max_factor 32; erase_typ_ms 20:4K=32000 52:32K=32000 D8:64K=32000 DC:256K=32000; erase_types "
             "1=20:4K 2=52:32K 3=D8:64K 4=DC:256K"},
            {"each unit of erase", "DW10=C10200BF DW9=DC12D810",
             "erase_max_factor 32; erase_typ_ms 20:4K=12 52:32K=128 D8:64K=128 DC:256K=1000; erase_types 1=20:4K "
             "2=52:32K 3=D8:64K 4=DC:256K"},
            {"shortest times of program", "DW11=0",
             "chip_erase_typ_ms 16; page_prog_typ_us 8; page_size 1; prog_max_factor 2"},
            {"longest times of program", "DW11=7FFFFFFF",
             "chip_erase_typ_ms 2048000; page_prog_typ_us 2048; page_size 32768; prog_max_factor 32"},
            {"units of chip erase", "DW11=A014E781", "chip_erase_typ_ms 256"},
            {"page of 512", "DW11=D914E791", "page_size 512"},
            {"poll by 70", "DW14=5CD5BDFB", "busy_poll_bits 62"},
            {"no poll", "DW14=5CD5BD03", "busy_poll_bits -"},
            {"each bit of DW14", "DW14=FFFFFF57", "busy_poll_bits 21"},
            {"quad enable 0", "DW15=FF0DF719", "qer 0"},
            {"quad enable 7", "DW15=FFFDF719", "qer 7"},
            {"no reset", "DW16=A5F960E9", "soft_reset_66_99 -"},
            {"every bit of DW16", "DW16=FFFFFFFF",
             "enter_4b B7,06+B7,EAR C5/C8,BANK 17/16,NVCR B1/B5,4-byte opcodes,always 4-byte,rsvd; exit_4b "
             "E9,06+E9,EAR C5/C8,BANK 17/16,NVCR B1/B5,hw reset,sw reset,power cycle,rsvd,rsvd"},
            {"each bit of DW16", "DW16=AA9555E9",
             "enter_4b 06+B7,BANK 17/16,4-byte opcodes,rsvd; exit_4b E9,EAR C5/C8,NVCR B1/B5,sw reset,rsvd"},
            {"no bit of DW16", "DW16=0", "enter_4b -; exit_4b -; soft_reset_66_99 -"},
            {"4-byte reads", "I1=FFF00A00", "4bait -"},
            {"each 4-byte command", "I1=FFF00155", "4bait 13 3C 6C 12 3E; 4bait_erase -"},
            {"4-byte erase types", "I1=FFF01EFF I2=FF5C2100",
             "4bait_erase 2=21 3=5C; ! The table of 4-byte instructions lists erase type 1 and has no command for it.; "
             "! The table of 4-byte instructions lists erase type 4, which the basic table does not have."},
            {"4-byte erase type that is missing", "I1=FFF010FF I2=DC000000",
             "4bait_erase -; ! The table of 4-byte instructions lists erase type 4, which the basic table does not "
             "have."},
            {"no 4-byte table", "10=C2", "4bait -; 4bait_erase -; tables FF00 FFC2 FF81"},
            {"a map with no end", "M6=00000101",
             "maps 65@4/3+8&8 01@ffff06/0+0&0 0:10000/7,ff0000/7; ! The sector map has no end."},
            {"a map that is cut", "M6=00010103", "maps 65@4/3+8&8 0:10000/7,ff0000/7; ! The sector map has no end."},
            {"a map that is not as large as the part", "M7=00FFFE06",
             "maps 65@4/3+8&8 0:10000/7,ff0000/7 1:ffff00/6; ! The sectors of sector map 1 come to 16776960 bytes, and "
             "the part has 16777216."},
            {"a map with an unknown type", "M7=00FFFF0E",
             "maps 65@4/3+8&8 0:10000/7,ff0000/7 1:1000000/e; ! The sectors of sector map 1 are erased by types that "
             "the basic table does not have."},
            {"a command with any address and clocks", "M1=FFCFFF00",
             "maps FF@4/-1+-1&ff 0:10000/7,ff0000/7 1:1000000/6"},
            {"a command with four address bytes", "M1=08836500", "maps 65@4/4+3&8 0:10000/7,ff0000/7 1:1000000/6"},
            {"a command without address", "M1=08036500", "maps 65@4/0+3&8 0:10000/7,ff0000/7 1:1000000/6"},
            {"a map of another number", "M6=00000503", "maps 65@4/3+8&8 0:10000/7,ff0000/7 5:1000000/6"},
            {"what follows the last map", "M3=00010003", "maps 65@4/3+8&8 0:10000/7,ff0000/7"},
            {"seven tables", "06=06",
             "! The parameter header at 0x20 is blank.; ! The parameter header at 0x28 is blank.; ! A table begins at "
             "0x30: there is room for 5 parameter headers, not for 7."},
            {"six headers where three are", "06=05",
             "! The parameter header at 0x20 is blank.; ! The parameter header at 0x28 is blank.; ! A table begins at "
             "0x30: there is room for 5 parameter headers, not for 6."},
            {"one header", "06=00",
             "4bait -; 4bait_erase -; maps -; tables FF00; ! The bytes at 0x10 are in no table: they are not read."},
            {"table beyond the end", "14=F0",
             "4bait -; 4bait_erase -; ! The table of 4-byte instructions is not in the read-out: it begins at 0xF0, "
             "and the read-out ends at 0xA4.; ! The bytes at 0x81 are in no table: they are not read."},
            {"table at the end", "14=A4",
             "4bait -; 4bait_erase -; ! The table of 4-byte instructions is not in the read-out: it begins at 0xA4, "
             "and the read-out ends at 0xA4.; ! The bytes at 0x81 are in no table: they are not read."},
            {"cut table", "end=A0",
             "maps 65@4/3+8&8 0:10000/7,ff0000/7; ! The read-out ends within the sector map: 6 of 7 double words are "
             "there.; ! The sector map has no end."},
            {"cut map", "end=90",
             "maps 65@4/3+8&8; ! The read-out ends within the sector map: 2 of 7 double words are there.; ! The sector "
             "map has no end."},
            {"cut basic table", "end=70",
             "4bait -; 4bait_erase -; maps -; octal -; ! The read-out ends within the basic table: 16 of 20 double "
             "words are there.; ! The table of 4-byte instructions is not in the read-out: it begins at 0x80, and the "
             "read-out ends at 0x70.; ! The sector map is not in the read-out: it begins at 0x88, and the read-out "
             "ends at 0x70."},
            {"cut in a double word", "end=5B",
             "4bait -; 4bait_erase -; busy_poll_bits -; chip_erase_typ_ms -; enter_4b -; exit_4b -; maps -; octal -; "
             "page_prog_typ_us -; page_size -; prog_max_factor -; qer -; soft_reset_66_99 -; ! The read-out ends "
             "within the basic table: 10 of 20 double words are there.; ! The table of 4-byte instructions is not in "
             "the read-out: it begins at 0x80, and the read-out ends at 0x5B.; ! The sector map is not in the "
             "read-out: it begins at 0x88, and the read-out ends at 0x5B."},
            {"cut before the second double word", "end=36",
             "4bait -; 4bait_erase -; bits 0; busy_poll_bits -; chip_erase_typ_ms -; density 0Mb; enter_4b -; "
             "erase_max_factor -; erase_typ_ms -; erase_types -; exit_4b -; maps -; octal -; page_prog_typ_us -; "
             "page_size -; prog_max_factor -; qer -; read_1_1_2 -; read_1_1_4 -; read_1_2_2 -; read_1_4_4 -; "
             "soft_reset_66_99 -; ! The read-out ends within the basic table: 1 of 20 double words are there.; ! The "
             "table of 4-byte instructions is not in the read-out: it begins at 0x80, and the read-out ends at 0x36.; "
             "! The sector map is not in the read-out: it begins at 0x88, and the read-out ends at 0x36."},
            {"cut behind the headers that are tables", "06=06 end=36",
             "4bait -; 4bait_erase -; bits 0; busy_poll_bits -; chip_erase_typ_ms -; density 0Mb; enter_4b -; "
             "erase_max_factor -; erase_typ_ms -; erase_types -; exit_4b -; maps -; octal -; page_prog_typ_us -; "
             "page_size -; prog_max_factor -; qer -; read_1_1_2 -; read_1_1_4 -; read_1_2_2 -; read_1_4_4 -; "
             "soft_reset_66_99 -; ! The parameter header at 0x20 is blank.; ! The parameter header at 0x28 is blank.; "
             "! The read-out ends within the parameter headers: 5 of 7 are there.; ! The read-out ends within the "
             "basic table: 1 of 20 double words are there.; ! The table of 4-byte instructions is not in the "
             "read-out: it begins at 0x80, and the read-out ends at 0x36.; ! The sector map is not in the read-out: "
             "it begins at 0x88, and the read-out ends at 0x36."},
            {"cut in the second of three headers", "end=17",
             "There is no basic table. The read-out ends within the parameter headers: 1 of 3 are there."},
            {"a table far behind the end", "15=FF 16=12",
             "4bait -; 4bait_erase -; ! The table of 4-byte instructions is not in the read-out: it begins at "
             "0x12FF80, and the read-out ends at 0xA4.; ! The bytes at 0x81 are in no table: they are not read."},
            {"a cut header", "end=27",
             "There is no basic table. The basic table is not in the read-out: it begins at 0x30, and the read-out "
             "ends at 0x27."},
            {"odd place", "14=83",
             "4bait 13 0C 3C BC 6C EC 12 34 3E; 4bait_erase -; ! The table of 4-byte instructions begins at 0x83, "
             "which is not a multiple of 4.; ! The table of 4-byte instructions and the sector map overlap.; ! The "
             "bytes at 0x81 are in no table: they are not read."},
            {"overlapping tables", "14=7C",
             "4bait -; 4bait_erase -; ! The basic table and the table of 4-byte instructions overlap.; ! The bytes at "
             "0x84 are in no table: they are not read.; ! The table of 4-byte instructions is blank."},
            {"within the headers", "14=18",
             "4bait 13 34; 4bait_erase -; maps -; tables FF00 FF84; ! A table begins at 0x18: there is room for 2 "
             "parameter headers, not for 3."},
            {"within a later header", "14=28 06=03",
             "4bait -; 4bait_erase -; ! The parameter header at 0x20 is blank.; ! The bytes at 0x81 are in no table: "
             "they are not read.; ! The table of 4-byte instructions is blank."},
            {"empty table", "13=00",
             "4bait -; 4bait_erase -; ! The table of 4-byte instructions is empty.; ! The bytes at 0x81 are in no "
             "table: they are not read."},
            {"empty table within another", "13=00 14=40",
             "4bait -; 4bait_erase -; ! The table of 4-byte instructions is empty.; ! The bytes at 0x81 are in no "
             "table: they are not read."},
            {"two basic tables", "10=00 11=05 13=10 14=30",
             "4bait -; 4bait_erase -; tables FF00 FF00 FF81; ! The bytes at 0x81 are in no table: they are not read.; "
             "! There are 2 headers of the basic table: the one of revision 1.7 is taken."},
            {"two basic tables of one revision", "10=00 11=07 13=10 14=30",
             "4bait -; 4bait_erase -; tables FF00 FF00 FF81; ! The bytes at 0x81 are in no table: they are not read.; "
             "! There are 2 headers of the basic table: the one of revision 1.7 is taken."},
            {"the later one is cut off", "10=00 11=08 13=10 14=FF",
             "4bait -; 4bait_erase -; tables FF00 FF00 FF81; ! The basic table is not in the read-out: it begins at "
             "0xFF, and the read-out ends at 0xA4.; ! The basic table begins at 0xFF, which is not a multiple of 4.; ! "
             "The bytes at 0x81 are in no table: they are not read.; ! There are 2 headers of the basic table: the one "
             "of revision 1.7 is taken."},
            {"a basic table of another major revision", "10=00 11=07 12=02 13=10 14=30",
             "4bait -; 4bait_erase -; tables FF00 FF00 FF81; ! The bytes at 0x81 are in no table: they are not read.; "
             "! The basic table has the unknown revision 2.7: it is not read.; ! There are 2 headers of the basic "
             "table: the one of revision 1.7 is taken."},
            {"fewer double words than the revision has", "0B=10 end=88",
             "bfpt_dwords 16; maps -; octal -; ! The sector map is not in the read-out: it begins at 0x88, and the "
             "read-out ends at 0x88.; ! The basic table has 16 double words: 20 belong to its revision 1.7."},
            {"nine double words of 1.5", "0B=09 09=05",
             "bfpt_dwords 9; bfpt_rev 1.5; busy_poll_bits -; chip_erase_typ_ms -; enter_4b -; erase_max_factor -; "
             "erase_typ_ms -; exit_4b -; octal -; page_prog_typ_us -; page_size -; prog_max_factor -; qer -; "
             "soft_reset_66_99 -; ! The bytes at 0x54 are in no table: they are not read.; ! The basic table has 9 "
             "double words: 16 belong to its revision 1.5."},
            {"nine double words of 1.4", "0B=09 09=04",
             "bfpt_dwords 9; bfpt_rev 1.4; busy_poll_bits -; chip_erase_typ_ms -; enter_4b -; erase_max_factor -; "
             "erase_typ_ms -; exit_4b -; octal -; page_prog_typ_us -; page_size -; prog_max_factor -; qer -; "
             "soft_reset_66_99 -; ! The bytes at 0x54 are in no table: they are not read."},
            {"twenty of 1.6", "09=06", "bfpt_rev 1.6"},
            {"four double words", "0B=04 09=00",
             "4bait_erase -; bfpt_dwords 4; bfpt_rev 1.0; busy_poll_bits -; chip_erase_typ_ms -; enter_4b -; "
             "erase_max_factor -; erase_typ_ms -; erase_types -; exit_4b -; octal -; page_prog_typ_us -; page_size -; "
             "prog_max_factor -; qer -; soft_reset_66_99 -; ! The bytes at 0x40 are in no table: they are not read.; ! "
             "The basic table has 4 double words: 9 belong to its revision 1.0.; ! The table of 4-byte instructions "
             "lists erase type 1, which the basic table does not have.; ! The table of 4-byte instructions lists erase "
             "type 3, which the basic table does not have.; ! The sectors of sector map 0 are erased by types that the "
             "basic table does not have.; ! The sectors of sector map 1 are erased by types that the basic table does "
             "not have."},
            {"text between the tables", "21=68", "! The bytes at 0x21 are in no table: they are not read."},
            {"zeros between the tables", "21=00", ""},
            {"an octal access protocol", "07=FD", "access FD"},
            {"blank header", "18=FF 1F=FF", "maps -; tables FF00 FF84; ! The parameter header at 0x18 is blank."},
            {"no signature", "00=54", "The bytes do not begin with the signature \"SFDP\"."},
            {"reversed", "00=50 01=44 02=46 03=53", "The four bytes of each double word are in reverse order."},
            {"another major revision", "05=02", "SFDP revision 2.8 is unknown: revisions 1.x can be read."},
            {"end in the header", "end=7", "The read-out ends within the SFDP header."},
            {"nothing", "end=0", "The bytes do not begin with the signature \"SFDP\"."},
            {"2 Gb", "DW2=7FFFFFFF 18=C2", "bits 2147483648; density 2048Mb; maps -; tables FF00 FF84 FFC2"},
            {"2 Gb as an exponent", "DW2=8000001F 18=C2",
             "bits 2147483648; density 2048Mb; maps -; tables FF00 FF84 FFC2"},
            {"a blank table of 4-byte instructions", "I1=FFFFFFFF I2=FFFFFFFF",
             "4bait -; 4bait_erase -; ! The table of 4-byte instructions is blank."},
            {"no basic table", "08=C2", "There is no basic table."},
            {"short 4-byte table", "13=01",
             "4bait_erase -; ! The bytes at 0x84 are in no table: they are not read.; ! The table of 4-byte "
             "instructions has no erase commands."},
            {"bytes in front", "front=3",
             "The signature \"SFDP\" is at 0x03 and not at the start: bytes were added before it."},
            {"a blank basic table", "DW1=FFFFFFFF", "The basic table is blank."},
            {"a basic table of zeros", "DW1=0", "The basic table is blank."},
            {"erase of 2^33 bytes", "DW9=FF00C721 M4=FF03 M5=FEFF03 M7=FFFF02 I1=FFF002FF",
             "4bait_erase 1=21; erase_typ_ms 20:4K=64 52:32K=128; erase_types 1=20:4K 2=52:32K; maps 65@4/3+8&8 "
             "0:10000/3,ff0000/3 1:1000000/2; ! SFDP DW9: erase type 3 erases 2^33 bytes, which is too much: it is "
             "left out."},
            {"1 Kb", "DW2=3FF DW8=0 DW9=0 DW1=FFF120E7 I1=FFF00000 10=C2 18=C2",
             "4bait -; 4bait_erase -; 4k -; bits 1024; density 0Mb; erase_typ_ms -; erase_types -; maps -; tables FF00 "
             "FFC2 FFC2"},
        });
    }

    void a_change_changes_its_value()
    {
        const auto [changes, expected] = row<QString, QString>();
        QVERIFY2(difference(changes) == expected, qPrintable(difference(changes)));
    }

    // Fields of bits end where the standard says, whatever is beside them.
    void fields_of_bits_are_whole_data()
    {
        rows<int, int, int, int>({{"DW14=FFFFFFFF DW16=FFFFFFFF", 0x3F, 0x3F, 0x3FF, 0xFF},
                                  {"DW14=00000003 DW16=000000FF", 0, 0, 0, 0},
                                  {"DW14=00000104 DW16=01004100", 0x01, 0x01, 0x001, 0x01},
                                  {"DW14=00000080 DW16=80802000", 0x20, 0x20, 0x200, 0x80}});
    }

    void fields_of_bits_are_whole()
    {
        const auto [poll, reset, leave, enter] = row<int, int, int, int>();
        const GFPDB_SFDP sfdp = sfdp_of(changed(QTest::currentDataTag()));
        QCOMPARE(sfdp.busy_poll.value_or(-1), poll);
        QCOMPARE(sfdp.soft_reset.value_or(-1), reset);
        QCOMPARE(sfdp.leave_4_byte.value_or(-1), leave);
        QCOMPARE(sfdp.enter_4_byte.value_or(-1), enter);
    }
};

QTEST_APPLESS_MAIN(TEST_SFDP_TABLES)

#include "test_sfdp_tables.moc"
