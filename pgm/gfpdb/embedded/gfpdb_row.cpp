#include "gfpdb_row.h"

#include "gfpdb_text.h"

#include <QUuid>

std::string gfpdb_new_revision()
{
    return gfpdb_to_utf8(QUuid::createUuid().toString(QUuid::WithoutBraces));
}
