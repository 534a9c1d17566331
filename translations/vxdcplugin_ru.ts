<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Камера</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Серийная
съёмка</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Видео</translation>
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
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Оставить</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Переснять</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Пуск</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Показать</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Видео /
    Фото</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Фото /
    Видео</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Загрузить</translation>
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
        <translation>Камера не найдена.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Микрофон не найден.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Камера и микрофон не найдены.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Камера недоступна. Проверьте, правильно ли она подключена. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Не удалось сохранить.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Загрузка файлов. Подождите...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Файлы загружены.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Не удалось загрузить.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Загрузить папку</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Клавиши</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Показывает это до следующей клавиши или касания</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>К следующей кнопке</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Назад к предыдущей кнопке</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Нажимает кнопку</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>В списке от одного к другому</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Выбирает в списке или снимает выбор</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Живое изображение крупнее, мельче</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Живое изображение целиком</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Поворачивает изображение на четверть оборота</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Колесо мыши</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Крупнее или мельче, вокруг указателя</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Два пальца</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Крупнее или мельче, между пальцами</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Перетаскивание</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Сдвигает увеличенное изображение</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Копирует то, что показано</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Назад из вопроса или сообщения</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Закрывает программу</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Пробел</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>КАМЕРА</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Камера включается. Подождите...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Не поддерживается</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Камера и микрофон недоступны. Проверьте, правильно ли они подключены. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Камера недоступна. Проверьте, правильно ли она подключена. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Микрофон недоступен. Проверьте, правильно ли он подключён.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Живое изображение</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 с до съёмки  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> с до съёмки</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Идёт запись</translation>
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
        <translation>Выберите устройство:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
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
        <translation>ОК</translation>
    </message>
    <message>
        <source>Please Waite..</source>
        <translation>Подождите..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Не удалось.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Выполняется вставка. Подождите... 
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
        <translation>Сохранить фото и видео?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
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
        <translation>Серийная съёмка:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>шт.</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Подтверждать сделанный снимок:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Разрешение:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Папка для сохранения:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Использовать стандартную папку</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Использовать другую папку</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
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
        <translation>Серийная съёмка</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>шт.</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Подтверждать сделанный снимок</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Использовать стандартную папку</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Использовать другую папку</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Укажите папку для сохранения.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Указан недопустимый путь.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Папка для сохранения</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Можно выбрать не более 9 элементов.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Видео</translation>
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
        <translation>Увеличить</translation>
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
        <translation>Видео</translation>
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
        <translation>ОК</translation>
    </message>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>На диске недостаточно места.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Съёмка прекращается. Освободите место. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Съёмка невозможна, пока эта папка является ссылкой или принадлежит не только вам:
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
        <translation>Показ, фотографирование и съёмка того, что лежит под камерой</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Искать в:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Папка:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Вперёд</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Родительская папка</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Создать папку</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Папка не найдена.
Проверьте, правильно ли указано имя папки.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Компьютер</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
</context>
</TS>
