# The flows: actions, operations, the catalogue of built-in parts and what is made from it. Included where `gfpdb` is
# defined.
target_sources(gfpdb PRIVATE
    embedded/gfpdb_action_model.cpp
    embedded/gfpdb_action_model.h
    embedded/gfpdb_action_rules.cpp
    embedded/gfpdb_action_rules.h
    embedded/gfpdb_action_value.cpp
    embedded/gfpdb_action_value.h
    embedded/gfpdb_catalogue.cpp
    embedded/gfpdb_catalogue.h
    embedded/gfpdb_catalogue_csv.cpp
    embedded/gfpdb_catalogue_csv.h
    embedded/gfpdb_flow_builder.cpp
    embedded/gfpdb_flow_builder.h
    embedded/gfpdb_flow_check.cpp
    embedded/gfpdb_flow_check.h
    embedded/gfpdb_flow_templates.cpp
    embedded/gfpdb_flow_templates.h
    embedded/gfpdb_flow_traits.cpp
    embedded/gfpdb_flow_traits.h
    embedded/gfpdb_operation.cpp
    embedded/gfpdb_operation.h
    embedded/gfpdb_part.h
    data/gfpdb_catalogue.qrc)
