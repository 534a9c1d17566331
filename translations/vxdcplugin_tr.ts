<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Canlı</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Fotoğraf</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Seri
çekim</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Kabul et</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Yeniden çek</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Oynat</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Göster</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Video /
    Fotoğraf</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Fotoğraf /
    Video</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Yapıştır</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Yükle</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Durağan görüntü</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Kamera bulunamadı.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Mikrofon bulunamadı.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Kamera ve mikrofon bulunamadı.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera kullanılamıyor. Doğru bağlandığından emin olun. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Kaydedilemedi.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Dosyalar yükleniyor. Lütfen bekleyin...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Dosyalar yüklendi.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Yüklenemedi.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Klasör yükle</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Tuşlar</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Sonraki tuşa veya dokunuşa kadar bunu gösterir</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Sonraki düğmeye</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Önceki düğmeye geri</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Düğmeye basar</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>Listede birinden diğerine</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Listede seçer veya seçimi kaldırır</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Canlı görüntü daha büyük, daha küçük</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Canlı görüntünün tamamı</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Canlı görüntüyü çeyrek tur döndürür</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Fare tekerleği</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>İmlecin çevresinde daha büyük veya küçük</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>İki parmak</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Parmakların arasında daha büyük veya küçük</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Sürükleme</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Büyütülmüş canlı görüntüyü kaydırır</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Gösterileni kopyalar</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Sorudan veya iletiden geri döner</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Programı kapatır</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Boşluk çubuğu</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>CANLI</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Kamera açılıyor. Lütfen bekleyin...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Desteklenmiyor</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera ve mikrofon kullanılamıyor. Doğru bağlandıklarından emin olun. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera kullanılamıyor. Doğru bağlandığından emin olun. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofon kullanılamıyor. Doğru bağlandığından emin olun.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Canlı görüntü</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 saniye sonra çekilecek  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> saniye sonra çekilecek</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Kaydediliyor</translation>
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
        <translation>Bir aygıt seçin:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
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
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Please Waite..</source>
        <translation>Lütfen bekleyin..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Tamamlandı</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Başarısız.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Yapıştırılıyor. Lütfen bekleyin... 
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
        <translation>Fotoğraflar ve videolar kaydedilsin mi?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Zamanlayıcı:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>saniye</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Seri çekim:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>kare</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Çekilen görüntüyü onayla:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Çözünürlük:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Kayıt yeri:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Varsayılan klasörü kullan</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Başka klasör kullan</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Zamanlayıcı</translation>
    </message>
    <message>
        <source>second</source>
        <translation>saniye</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Seri çekim</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>kare</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Çekilen görüntüyü onayla</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Çözünürlük</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Varsayılan klasörü kullan</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Başka klasör kullan</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Kayıt yerini belirtin.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Belirtilen yol geçersiz.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Kayıt yeri</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>En çok 9 öğe seçebilirsiniz.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Fotoğraf</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Fotoğraf</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>Büyüt</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
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
        <translation>Tamam</translation>
    </message>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Diskte yeterli boş yer yok.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Çekim durduruluyor. Lütfen yer açın. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Bu klasör bir bağlantı olduğu veya yalnızca size ait olmadığı sürece hiçbir şey çekilemez:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Belge kamerası</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Kameranın altındakini gösterin, fotoğraflayın ve filme alın</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Konum:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Klasör:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Seç</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Üst klasör</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Yeni klasör oluştur</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Klasör bulunamadı.
Lütfen klasör adının doğru olduğunu kontrol edin.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Bilgisayar</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
</context>
</TS>
