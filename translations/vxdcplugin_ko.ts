<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>라이브</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>사진</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>연속
촬영</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>동영상</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>List</source>
        <translation>목록</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>다시 찍기</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>View</source>
        <translation>보기</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>동영상 /
    사진</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>사진 /
    동영상</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>불러오기</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>정지 화면</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>카메라를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>마이크를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>카메라와 마이크를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>카메라를 사용할 수 없습니다. 올바르게 연결되어 있는지 확인하십시오. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>저장하지 못했습니다.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>파일을 불러오고 있습니다. 잠시 기다려 주십시오...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>파일을 불러왔습니다.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>불러오지 못했습니다.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>폴더 불러오기</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>키</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>다음 키를 누르거나 화면을 만질 때까지 표시</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>다음 버튼으로</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>이전 버튼으로</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>버튼 누르기</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>목록에서 옆 항목으로</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>목록에서 선택하거나 선택 취소</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>실시간 화면 확대, 축소</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>실시간 화면 전체</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>실시간 화면을 90도 돌리기</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>마우스 휠</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>포인터를 중심으로 확대 또는 축소</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>두 손가락</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>손가락 사이를 확대 또는 축소</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>끌기</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>확대된 실시간 화면 옮기기</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>보이는 것을 복사</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>질문이나 메시지에서 돌아가기</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>프로그램 종료</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>스페이스 바</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>라이브</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>카메라를 여는 중입니다. 잠시 기다려 주십시오...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>지원되지 않습니다</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>카메라와 마이크를 사용할 수 없습니다. 올바르게 연결되어 있는지 확인하십시오. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>카메라를 사용할 수 없습니다. 올바르게 연결되어 있는지 확인하십시오. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>마이크를 사용할 수 없습니다. 올바르게 연결되어 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>실시간 화면</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 초 후 촬영  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> 초 후 촬영</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>녹화 중</translation>
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
        <translation>장치를 선택하십시오:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
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
        <translation>확인</translation>
    </message>
    <message>
        <source>Please Waite..</source>
        <translation>잠시 기다려 주십시오..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>실패했습니다.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>붙여넣고 있습니다. 잠시 기다려 주십시오... 
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
        <translation>사진과 동영상을 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>셀프타이머:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>초</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>연속 촬영:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>장</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>촬영한 이미지 확인:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>해상도:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>저장 위치:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>기본 폴더 사용</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>다른 폴더 사용</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>셀프타이머</translation>
    </message>
    <message>
        <source>second</source>
        <translation>초</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>연속 촬영</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>장</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>촬영한 이미지 확인</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>해상도</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>기본 폴더 사용</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>다른 폴더 사용</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>저장 위치를 지정하십시오.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>지정한 경로가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>저장 위치</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>최대 9개까지 선택할 수 있습니다.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>사진</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>동영상</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>사진</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>확대</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>동영상</translation>
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
        <translation>확인</translation>
    </message>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>디스크 공간이 부족합니다.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>촬영을 중단합니다. 디스크 공간을 확보하십시오. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>이 폴더가 링크이거나 본인만의 폴더가 아니면 촬영할 수 없습니다:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>실물 화상기</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>카메라 아래에 있는 것을 보여 주고 촬영하고 녹화합니다</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>찾는 위치:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>폴더:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>앞으로</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>상위 폴더</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>새 폴더 만들기</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
폴더를 찾을 수 없습니다.
폴더 이름이 올바른지 확인하십시오.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>컴퓨터</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
</TS>
