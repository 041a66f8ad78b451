if(WIN32)
    set(nx_reading_system win)
else()
    set(nx_reading_system unix)
endif()
list(APPEND NXVBLENGINE_SOURCES
    reading/NxFileLength.cpp
    reading/NxFileLength.h
    reading/NxFolderAnnouncer.cpp
    reading/NxFolderAnnouncer.h
    reading/NxFootageReader.cpp
    reading/NxFootageReader.h
    reading/NxFootageReader_order.cpp
    reading/NxFootageReader_outcomes.cpp
    reading/NxForkGuard.h
    reading/NxForkGuard_${nx_reading_system}.cpp
    reading/NxQuietFiles.cpp
    reading/NxQuietFiles.h
    reading/NxReadOutcome.h
    reading/NxReadRequests.cpp
    reading/NxReadRequests.h
    reading/NxReadingOrder.cpp
    reading/NxReadingOrder.h
    reading/NxReadingThread.cpp
    reading/NxReadingThread.h
    reading/NxSilentVolumes.cpp
    reading/NxSilentVolumes.h
    reading/NxWorkerBurial.cpp
    reading/NxWorkerBurial.h
    reading/NxWorkerLocation.cpp
    reading/NxWorkerLocation.h
    reading/NxWorkerPool.cpp
    reading/NxWorkerPool.h
    reading/NxWorkerProcess.cpp
    reading/NxWorkerProcess.h
    reading/NxWorkerSettings.h)
