# Windows, device contexts, GDI objects, dialogs, images, the application object: everything behind
# <afxwin.h>, <afxdlgs.h> and <atlimage.h>.
target_link_libraries(VantAfx PUBLIC gdi32 user32 PRIVATE comdlg32 comctl32 gdiplus msimg32 ole32)
