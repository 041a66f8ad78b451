list(APPEND NXVBLENGINE_SOURCES
    records/NxChange.cpp
    records/NxChange.h
    records/NxClipRecord.h
    records/NxFolderRecord.h
    records/NxFootageRecord.h
    records/NxFootageRow.cpp
    records/NxFootageRow.h
    records/NxLosslessText.cpp
    records/NxLosslessText.h
    records/NxMediaRecord.h
    records/NxProjectContents.h
    records/NxResourceRecord.h
    records/NxStoreBatch.h
    records/NxTimelineRecord.h
    records/NxUndoRecord.h)
