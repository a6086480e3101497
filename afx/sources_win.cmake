# Windows, device contexts, GDI objects, dialogs, images, the application object: everything behind
# <afxwin.h>, <afxdlgs.h> and <atlimage.h>.
target_link_libraries(VantAfx PUBLIC gdi32 gdiplus user32 PRIVATE comdlg32 msimg32 ole32)
target_sources(VantAfx
  PRIVATE
    src/AfxMessageBox.cpp
    src/CBitmap.cpp
    src/CBrush.cpp
    src/CClientDC.cpp
    src/CCmdTarget.cpp
    src/CDC.cpp
    src/CDCDraw.cpp
    src/CDialog.cpp
    src/CEdit.cpp
    src/CFileDialog.cpp
    src/CFont.cpp
    src/CFrameWnd.cpp
    src/CGdiObject.cpp
    src/CImage.cpp
    src/CImageFiles.cpp
    src/CPaintDC.cpp
    src/CPalette.cpp
    src/CPen.cpp
    src/CRgn.cpp
    src/CScrollBar.cpp
    src/CWinApp.cpp
    src/CWindowDC.cpp
    src/CWnd.cpp
    src/CWndDispatch.cpp
    src/CWndHandlers.cpp
    src/CWndRelatives.cpp
    src/CWndWindow.cpp
    src/WndClass.cpp
    src/detail/HandleMaps.cpp
    src/detail/Indexed.cpp
    src/detail/WndThread.cpp
  PUBLIC FILE_SET HEADERS BASE_DIRS include FILES
    include/afxdlgs.h
    include/afxwin.h
    include/atlimage.h
    include/vafx/CBitmap.h
    include/vafx/CBrush.h
    include/vafx/CClientDC.h
    include/vafx/CCmdTarget.h
    include/vafx/CDC.h
    include/vafx/CDialog.h
    include/vafx/CEdit.h
    include/vafx/CFileDialog.h
    include/vafx/CFont.h
    include/vafx/CFrameWnd.h
    include/vafx/CGdiObject.h
    include/vafx/CImage.h
    include/vafx/CPaintDC.h
    include/vafx/CPalette.h
    include/vafx/CPen.h
    include/vafx/CRgn.h
    include/vafx/CScrollBar.h
    include/vafx/CWinApp.h
    include/vafx/CWindowDC.h
    include/vafx/CWnd.h
    include/vafx/MessageMap.h
    include/vafx/MessageMapReflect.h
    include/vafx/MessageMapWnd.h
    include/vafx/types.h
)

# The entry point for programs that have only an application object. The linker takes it in for the symbol
# asked for here, unless the program defines that itself; a program with its own main never calls it.
add_library(VantAfxMain STATIC src/AfxMain.cpp)
vant_configure_target(VantAfxMain)
target_compile_definitions(VantAfxMain PRIVATE UNICODE _UNICODE _AFXDLL __USE_MINGW_ANSI_STDIO=0)
target_include_directories(VantAfxMain PRIVATE include)
target_link_libraries(VantAfx INTERFACE VantAfxMain)
target_link_options(VantAfx INTERFACE "$<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:LINKER:-u,WinMain>")
# Circular only in appearance: the DLL itself links nothing of this.
target_link_libraries(VantAfxMain INTERFACE VantAfx)
