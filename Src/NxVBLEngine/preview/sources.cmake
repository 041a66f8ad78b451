list(APPEND NXVBLENGINE_SOURCES
    preview/NxPreviewClip.cpp
    preview/NxPreviewClip.h
    preview/NxPreviewNews.h
    preview/NxPreviewOrder.h
    preview/NxPreviewPlayer.cpp
    preview/NxPreviewPlayer.h
    preview/NxPreviewService.cpp
    preview/NxPreviewService.h
    preview/NxPreviewSettings.h
    preview/NxPreviewThread.cpp
    preview/NxPreviewThread.h
    preview/NxPreviewTimeline.cpp
    preview/NxPreviewTimeline.h)
