<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Na żywo</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Zdjęcie</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Zdjęcia
seryjne</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Zachowaj</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Powtórz</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauza</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Film /
    Zdjęcie</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Zdjęcie /
    Film</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Wklej</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Wczytaj</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Stopklatka</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nie znaleziono kamery.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Nie znaleziono mikrofonu.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Nie znaleziono kamery ani mikrofonu.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera jest niedostępna. Sprawdź, czy jest prawidłowo podłączona. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Nie udało się zapisać.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Trwa wczytywanie plików. Proszę czekać...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Pliki zostały wczytane.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Nie udało się wczytać.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Wczytaj folder</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Klawisze</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Pokazuje to do następnego klawisza lub dotknięcia</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Do następnego przycisku</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Z powrotem do poprzedniego przycisku</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Naciska przycisk</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>Od jednego do następnego na liście</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Wybiera z listy albo cofa wybór</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Obraz na żywo większy, mniejszy</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Cały obraz na żywo</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Obraca obraz na żywo o ćwierć obrotu</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Kółko myszy</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Większy lub mniejszy, wokół wskaźnika</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Dwa palce</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Większy lub mniejszy, między palcami</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Przeciąganie</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Przesuwa powiększony obraz na żywo</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Kopiuje to, co widać</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Wraca z pytania lub komunikatu</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Kończy program</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Spacja</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>NA ŻYWO</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Trwa uruchamianie kamery. Proszę czekać...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Brak obsługi</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera i mikrofon są niedostępne. Sprawdź, czy są prawidłowo podłączone. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera jest niedostępna. Sprawdź, czy jest prawidłowo podłączona. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofon jest niedostępny. Sprawdź, czy jest prawidłowo podłączony.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Obraz na żywo</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 s do zdjęcia  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s do zdjęcia</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Trwa nagrywanie</translation>
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
        <translation>Wybierz urządzenie:</translation>
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
        <translation>Proszę czekać..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Nie udało się.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Trwa wklejanie. Proszę czekać... 
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
        <translation>Czy zapisać zdjęcia i filmy?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Samowyzwalacz:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Zdjęcia seryjne:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>zdj.</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Potwierdzaj zrobione zdjęcia:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Rozdzielczość:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Miejsce zapisu:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Użyj folderu domyślnego</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Użyj innego folderu</translation>
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
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Samowyzwalacz</translation>
    </message>
    <message>
        <source>second</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Zdjęcia seryjne</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>zdj.</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Potwierdzaj zrobione zdjęcia</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rozdzielczość</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Użyj folderu domyślnego</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Użyj innego folderu</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Podaj miejsce zapisu.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Podana ścieżka jest nieprawidłowa.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Miejsce zapisu</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Można wybrać najwyżej 9 elementów.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Zdjęcie</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Zdjęcie</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>Powiększ</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
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
        <translation>Na dysku jest za mało miejsca.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Robienie zdjęć i nagrywanie zostaje przerwane. Zwolnij miejsce na dysku. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Nie można niczego zarejestrować, dopóki ten folder jest łączem lub nie należy wyłącznie do Ciebie:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Wizualizer</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Pokazuj, fotografuj i filmuj to, co leży pod kamerą</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Szukaj w:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Wybierz</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Folder nadrzędny</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Utwórz nowy folder</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Nie znaleziono folderu.
Sprawdź, czy nazwa folderu jest poprawna.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
