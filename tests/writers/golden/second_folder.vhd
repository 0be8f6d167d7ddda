--==== out/mgra4.vhd ====
--stage HELD=1 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  mgra4 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 en	:	IN  STD_LOGIC := '1';
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END mgra4;

 ARCHITECTURE RTL OF mgra4 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_s1_w_lg_d1w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s1_w_lg_w_lg_d1w2w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (3 DOWNTO 0);
 BEGIN

	loop0 : FOR i IN 0 TO 3 GENERATE 
		wire_s1_w_lg_d1w(i) <= d(i) AND keep(i);
	END GENERATE loop0;
	loop1 : FOR i IN 0 TO 3 GENERATE 
		wire_s1_w_lg_w_lg_d1w2w(i) <= wire_s1_w_lg_d1w(i) XOR en;
	END GENERATE loop1;
	keep <= "1110";
	q <= wire_s1_w_lg_w_lg_d1w2w;

 END RTL; --mgra4
--VALID FILE
--==== out/mgsa4.vhd ====
--stage HELD=2 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  mgsa4 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 en	:	IN  STD_LOGIC := '1';
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END mgsa4;

 ARCHITECTURE RTL OF mgsa4 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_s2_w_lg_d3w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s2_w_lg_w_lg_d3w4w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (3 DOWNTO 0);
 BEGIN

	loop2 : FOR i IN 0 TO 3 GENERATE 
		wire_s2_w_lg_d3w(i) <= d(i) AND keep(i);
	END GENERATE loop2;
	loop3 : FOR i IN 0 TO 3 GENERATE 
		wire_s2_w_lg_w_lg_d3w4w(i) <= wire_s2_w_lg_d3w(i) XOR en;
	END GENERATE loop3;
	keep <= "1101";
	q <= wire_s2_w_lg_w_lg_d3w4w;

 END RTL; --mgsa4
--VALID FILE
--==== out/top.vhd ====
--top LBX_SINGLE_OUTPUT_FILE="OFF" d
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_vcc	:	STD_LOGIC;
	 SIGNAL  wire_s1_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s2_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  mgra4
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  mgsa4
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	wire_vcc <= '1';
	q <= wire_s2_q;
	s1 :  mgra4
	  PORT MAP ( 
		d => d,
		en => wire_vcc,
		q => wire_s1_q
	  );
	s2 :  mgsa4
	  PORT MAP ( 
		d => wire_s1_q,
		en => wire_vcc,
		q => wire_s2_q
	  );

 END RTL; --top
--VALID FILE
--==== taken/mgpa4.tdf ====
-- the first stage would have this name
--==== taken/mgqa4.vhd ====
-- the second one, or the first with the next number
