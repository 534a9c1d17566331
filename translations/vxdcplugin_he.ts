<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>שידור חי</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>תמונה</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>צילום
רציף</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>סרט</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>עצירה</translation>
    </message>
    <message>
        <source>List</source>
        <translation>רשימה</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>הגדרות</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>יציאה</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>שוב</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>הפעלה</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>השהיה</translation>
    </message>
    <message>
        <source>View</source>
        <translation>הצגה</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>סרט /
    תמונה</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>תמונה /
    סרט</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>חזרה</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>הדבקה</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>טעינה</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>תמונת סטילס</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>לא נמצא התקן וידאו.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>לא נמצא התקן שמע.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>לא נמצאו התקני וידאו ושמע.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>התקן הווידאו אינו תקין. ודאו שההתקן מחובר כראוי. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>השמירה נכשלה.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>הקובץ נטען. נא להמתין...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>הקובץ נטען בהצלחה.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>הטעינה נכשלה.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>טעינת תיקייה</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>מקשים</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>מציג את אלה עד המקש או המגע הבא</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>אל הכפתור הבא</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>חזרה אל הכפתור הקודם</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>לוחץ על הכפתור</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>מפריט לפריט ברשימה</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>בוחר ברשימה, או מבטל את הבחירה</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>תמונה חיה גדולה יותר, קטנה יותר</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>התמונה החיה כולה</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>מסובב את התמונה החיה ברבע סיבוב</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>גלגל העכבר</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>הגדלה או הקטנה סביב הסמן</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>שתי אצבעות</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>הגדלה או הקטנה בין האצבעות</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>גרירה</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>מזיז את התמונה החיה המוגדלת</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>מעתיק את מה שמוצג</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>חזרה משאלה או מהודעה</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>סוגר את התוכנית</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>מקש הרווח</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>שידור חי</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>המצלמה נפתחת. נא להמתין...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>לא נתמך</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>התקן הווידאו והתקן השמע אינם תקינים. ודאו שההתקנים מחוברים כראוי. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>התקן הווידאו אינו תקין. ודאו שההתקן מחובר כראוי. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>התקן השמע אינו תקין. ודאו שההתקן מחובר כראוי.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>תמונה חיה</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 שניות עד לצילום  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> שניות עד לצילום</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>מקליט</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>נא לבחור התקן:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>אישור</translation>
    </message>
</context>
<context>
    <name>CWaiteMsgDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>Please Waite..</source>
        <translation>נא להמתין..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>הושלם</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>נכשל.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>מתבצעת הדבקה. נא להמתין... 
</translation>
    </message>
</context>
<context>
    <name>SaveConfirmDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Do you want to save the Photo / Movie data?</source>
        <translation>האם לשמור את התמונות והסרטים?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>כן</translation>
    </message>
    <message>
        <source>No</source>
        <translation>לא</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>הגדרות</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>טיימר עצמי:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>שנ׳</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>צילום רציף:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>תמונות</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>אישור התמונה שצולמה:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>רזולוציה:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>תיקיית שמירה:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>שימוש במיקום ברירת המחדל</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>שימוש במיקום אחר</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>טיימר עצמי</translation>
    </message>
    <message>
        <source>second</source>
        <translation>שניות</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>צילום רציף</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>תמונות</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>אישור התמונה שצולמה</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>רזולוציה</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>שימוש במיקום ברירת המחדל</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>שימוש במיקום אחר</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>נא לציין מיקום שמירה.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>הנתיב שצוין אינו תקין.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>תיקיית שמירה</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>ניתן לבחור 9 לכל היותר.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>תמונה</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>סרט</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>תמונה</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>הגדלה</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>חזרה</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>סרט</translation>
    </message>
</context>
<context>
    <name>WebcamUtil</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>אין די מקום פנוי בדיסק.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>הצילום הופסק. נא לפנות מקום. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>לא ניתן לצלם דבר כל עוד תיקייה זו היא קישור או אינה שלך בלבד:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>מצלמת מסמכים</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>הצגה, צילום והסרטה של מה שמונח מתחת למצלמה</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>חיפוש ב:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>תיקייה:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>בחירה</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>אחורה</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>קדימה</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>תיקיית האב</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>יצירת תיקייה חדשה</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
התיקייה לא נמצאה.
נא לוודא ששם התיקייה נכון.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>מחשב</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>אישור</translation>
    </message>
</context>
</TS>
