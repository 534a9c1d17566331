<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>التقاط
متتابع</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>فيديو</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>List</source>
        <translation>القائمة</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>خروج</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>قبول</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>View</source>
        <translation>عرض</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>فيديو /
    صورة</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>صورة /
    فيديو</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>تحميل</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>صورة ثابتة</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>تعذّر العثور على جهاز فيديو.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>تعذّر العثور على جهاز صوت.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>تعذّر العثور على أجهزة فيديو أو صوت.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>جهاز الفيديو غير صالح. يُرجى التأكد من توصيل الجهاز بشكل صحيح. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>فشل الحفظ.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>جارٍ تحميل الملف. يُرجى الانتظار...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>تم تحميل الملف بنجاح.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>فشل التحميل.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>تحميل مجلد</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>المفاتيح</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>يعرض هذا حتى المفتاح أو اللمسة التالية</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>إلى الزر التالي</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>إلى الزر السابق</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>يضغط الزر</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>من عنصر إلى آخر في القائمة</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>يختار من القائمة أو يلغي الاختيار</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>تكبير الصورة المباشرة، تصغيرها</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>الصورة المباشرة كاملة</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>يدير الصورة المباشرة ربع دورة</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>عجلة الفأرة</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>تكبير أو تصغير حول المؤشر</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>إصبعان</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>تكبير أو تصغير بين الإصبعين</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>السحب</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>يحرك الصورة المباشرة المكبرة</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>ينسخ ما هو معروض</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>يرجع من سؤال أو رسالة</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>ينهي البرنامج</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>مفتاح المسافة</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>جارٍ فتح الكاميرا. يُرجى الانتظار...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>غير مدعوم</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>جهاز الفيديو وجهاز الصوت غير صالحين. يُرجى التأكد من توصيلهما بشكل صحيح. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>جهاز الفيديو غير صالح. يُرجى التأكد من توصيل الجهاز بشكل صحيح. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>جهاز الصوت غير صالح. يُرجى التأكد من توصيل الجهاز بشكل صحيح.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>الصورة المباشرة</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 ثانية حتى الالتقاط  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> ثانية حتى الالتقاط</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>جارٍ تسجيل فيلم</translation>
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
        <translation>يُرجى اختيار جهاز:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
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
        <translation>موافق</translation>
    </message>
    <message>
        <source>Please Waite..</source>
        <translation>يُرجى الانتظار..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>اكتمل</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>فشل.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>جارٍ اللصق. يُرجى الانتظار... 
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
        <translation>هل تريد حفظ الصور ومقاطع الفيديو؟</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>المؤقت الذاتي:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>ث</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>التقاط متتابع:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>صور</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>تأكيد الصورة الملتقطة:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>الدقة:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>مجلد الحفظ:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>استخدام الموقع الافتراضي</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>استخدام موقع آخر</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>المؤقت الذاتي</translation>
    </message>
    <message>
        <source>second</source>
        <translation>ثانية</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>التقاط متتابع</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>صور</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>تأكيد الصورة الملتقطة</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>الدقة</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>استخدام الموقع الافتراضي</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>استخدام موقع آخر</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>يُرجى تحديد موقع الحفظ.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>المسار المحدد غير صالح.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>مجلد الحفظ</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>لا يمكنك تحديد 10 أو أكثر.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>فيديو</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>رجوع</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>فيديو</translation>
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
        <translation>موافق</translation>
    </message>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>المساحة المتاحة على القرص غير كافية.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>تم إيقاف الالتقاط. يُرجى توفير مساحة خالية. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>لا يمكن التقاط أي شيء ما دام هذا المجلد رابطًا أو ليس لك وحدك:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>كاميرا المستندات</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>عرض ما تحت الكاميرا وتصويره وتسجيله</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>البحث في:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>المجلد:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>اختيار</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>تقدم</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>المجلد الأعلى</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>إنشاء مجلد جديد</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
لم يُعثر على المجلد.
يرجى التأكد من صحة اسم المجلد.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>الكمبيوتر</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
</context>
</TS>
