<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Наживо</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Серійна
зйомка</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Відео</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Список</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Параметри</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Вихід</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Залишити</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Перезняти</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Відтворити</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Показати</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Відео /
    Фото</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Фото /
    Відео</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставити</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Відкрити</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Стоп-кадр</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Камеру не знайдено.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Мікрофон не знайдено.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Камеру та мікрофон не знайдено.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Камера недоступна. Перевірте, чи правильно її під’єднано. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Не вдалося зберегти.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Відкриття файлів. Зачекайте...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Файли відкрито.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Не вдалося відкрити.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Відкрити папку</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Клавіші</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Показує це до наступної клавіші або дотику</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>До наступної кнопки</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Назад до попередньої кнопки</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Натискає кнопку</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>У списку від одного до іншого</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Вибирає у списку або скасовує вибір</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Живе зображення більше, менше</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Живе зображення повністю</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Повертає живе зображення на чверть оберту</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Коліщатко миші</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Більше або менше, навколо вказівника</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Два пальці</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Більше або менше, між пальцями</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Перетягування</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Пересуває збільшене живе зображення</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Копіює те, що показано</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Назад із запитання або повідомлення</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Закриває програму</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Пробіл</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>НАЖИВО</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Камера вмикається. Зачекайте...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Не підтримується</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Камера та мікрофон недоступні. Перевірте, чи правильно їх під’єднано. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Камера недоступна. Перевірте, чи правильно її під’єднано. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Мікрофон недоступний. Перевірте, чи правильно його під’єднано.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Живе зображення</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 с до зйомки  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> с до зйомки</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Триває запис</translation>
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
        <translation>Виберіть пристрій:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
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
        <translation>OK</translation>
    </message>
    <message>
        <source>Please Waite..</source>
        <translation>Зачекайте..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Не вдалося.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Виконується вставлення. Зачекайте... 
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
        <translation>Зберегти фото та відео?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Так</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ні</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Параметри</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Автоспуск:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>с</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Серійна зйомка:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>шт.</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Підтверджувати зроблений знімок:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Роздільна здатність:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Папка для збереження:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Використовувати стандартну папку</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Використовувати іншу папку</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Автоспуск</translation>
    </message>
    <message>
        <source>second</source>
        <translation>с</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Серійна зйомка</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>шт.</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Підтверджувати зроблений знімок</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Роздільна здатність</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Використовувати стандартну папку</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Використовувати іншу папку</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Укажіть папку для збереження.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Указано неправильний шлях.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Папка для збереження</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Можна вибрати не більше ніж 9 елементів.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Відео</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>Збільшити</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Відео</translation>
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
        <translation>OK</translation>
    </message>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>На диску недостатньо місця.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Зйомку припинено. Звільніть місце. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Зйомка неможлива, доки ця тека є посиланням або належить не лише вам:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Документ-камера</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Показ, фотографування та знімання того, що лежить під камерою</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Шукати в:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Тека:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Вибрати</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Вперед</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Батьківська тека</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Створити теку</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Теку не знайдено.
Перевірте, чи правильно вказано її назву.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Комп’ютер</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
</context>
</TS>
