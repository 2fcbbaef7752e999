# The customer's texts in English: made by Qt's own tools, and inside the library as a resource. The .qm files are also
# installed, for hosts that keep all their translations in one place.
veltarm_find_qt(LinguistTools)
cmake_language(CALL qt${VELTARM_QT}_add_translation VELTARM_TRANSLATIONS ${PROJECT_SOURCE_DIR}/translations/veltarm_en.ts)
configure_file(translations/veltarm.qrc ${PROJECT_BINARY_DIR}/veltarm.qrc COPYONLY)
cmake_language(CALL qt${VELTARM_QT}_add_resources VELTARM_RESOURCES ${PROJECT_BINARY_DIR}/veltarm.qrc)
set_property(SOURCE ${VELTARM_RESOURCES} APPEND PROPERTY OBJECT_DEPENDS "${VELTARM_TRANSLATIONS}")
list(APPEND VELTARM_SOURCES ${VELTARM_RESOURCES} ${VELTARM_TRANSLATIONS})
