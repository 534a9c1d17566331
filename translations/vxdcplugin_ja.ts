<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>連続
撮影</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>List</source>
        <translation>一覧</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>決定</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>撮り直し</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>動画 /
    写真</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>写真 /
    動画</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>静止画</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>カメラが見つかりません。</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>マイクが見つかりません。</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>カメラとマイクが見つかりません。</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>カメラを使用できません。正しく接続されているか確認してください。 </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>保存できませんでした。</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>ファイルを読み込んでいます。お待ちください...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>ファイルを読み込みました。</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>読み込めませんでした。</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>フォルダーを読み込む</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>キー操作</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>次にキーを押すか触れるまで、これを表示</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>次のボタンへ</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>前のボタンへ</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>ボタンを押す</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>一覧で隣へ移る</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>一覧で選ぶ、または選択をやめる</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>ライブ映像を拡大、縮小</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>ライブ映像の全体</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>ライブ映像を90度回す</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>マウスホイール</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>ポインターを中心に拡大または縮小</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>2本の指</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>指の間を拡大または縮小</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>ドラッグ</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>拡大したライブ映像を動かす</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>表示中のものをコピー</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>質問やメッセージから戻る</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>プログラムを終了</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>スペースキー</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>カメラを開いています。お待ちください...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>サポートされていません</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>カメラとマイクを使用できません。正しく接続されているか確認してください。 </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>カメラを使用できません。正しく接続されているか確認してください。 </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>マイクを使用できません。正しく接続されているか確認してください。</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>ライブ映像</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 秒後に撮影  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> 秒後に撮影</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録画中</translation>
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
        <translation>機器を選択してください:</translation>
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
        <translation>お待ちください..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完了しました</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>失敗しました。</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>貼り付けています。お待ちください... 
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
        <translation>写真と動画を保存しますか?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>セルフタイマー:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>連続撮影:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>枚</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>撮影した画像を確認する:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>解像度:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>保存先:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>標準の保存先を使う</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>別の保存先を使う</translation>
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
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>セルフタイマー</translation>
    </message>
    <message>
        <source>second</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>連続撮影</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>枚</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>撮影した画像を確認する</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>標準の保存先を使う</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>別の保存先を使う</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>保存先を指定してください。</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>指定された保存先は使用できません。</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>保存先</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>選択できるのは9枚までです。</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>動画</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>動画</translation>
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
        <translation>ディスクの空き容量が足りません。
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>撮影を中止します。空き容量を確保してください。 </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>このフォルダーがリンクであるか、あなただけのものでない間は、撮影できません:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>書画カメラ</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>カメラの下にあるものを映す、撮る、録画する</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>場所:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>フォルダー:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>上のフォルダー</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新しいフォルダーを作成</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
フォルダーが見つかりません。
フォルダー名が正しいか確認してください。</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
