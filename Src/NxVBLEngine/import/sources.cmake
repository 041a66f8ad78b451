list(APPEND NXVBLENGINE_SOURCES
    import/NxDirectoryWalker.cpp
    import/NxDirectoryWalker.h
    import/NxEngineImporter.cpp
    import/NxEngineImporter.h
    import/NxImportChannel.cpp
    import/NxImportChannel.h
    import/NxImportJob.cpp
    import/NxImportJob.h
    import/NxImportJob_entries.cpp
    import/NxImportNow.cpp
    import/NxImportNow.h
    import/NxImportRules.cpp
    import/NxImportRules.h)
